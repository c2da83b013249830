// Puts what a reader finds, in its order, into paragraphs, cells and rows.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "richtext/format_reader.h"
#include "richtext/limits.h"
#include "richtext/rich_document.h"
#include "richtext/row_definition.h"

namespace tarnwell::richtext {

// Memory stays within a bound by the size of the source, and the document within limits.h. What
// comes past them is left out. No sound document comes near.
class DocumentBuilder {
 public:
  DocumentBuilder(std::size_t source_size, std::vector<Block>& blocks);

  void AddText(std::string_view utf8, const FormatState& state);
  void AddPicture(Picture picture, const FormatState& state);
  void AddOpaque(Opaque opaque, const FormatState& state);
  // A group, or a word with the blank that ends it. Behind a section break it belongs to that.
  void AddInPlace(std::string rtf, const FormatState& state);

  // The text that stands before the paragraph being read, in a list.
  void SetMarker(std::string marker) { marker_ = std::move(marker); }

  void EndParagraph(const FormatState& state);
  void EndSection(const FormatState& state);
  void EndCell(const FormatState& state);
  void EndRow();
  // Something was left out: the rest needn't be read.
  bool is_full() const { return is_full_; }
  // A text without a paragraph's end, cells without a row's end.
  void Finish(const FormatState& state);
  // The RTF of what stands behind the last paragraph and belongs to none, once it is finished.
  std::string TakeEpilogue() { return std::move(epilogue_); }

  // Of the row whose cells are being read.
  RowDefinition& row_definition() { return row_definition_; }
  // The format of cells that hold nothing.
  void SetBlank(CharacterFormat blank) { blank_ = std::move(blank); }

  // Of the paragraph being read.
  bool has_text() const { return has_text_; }
  std::size_t run_count() const { return paragraph_.runs.size(); }
  bool HasField(int field) const { return last_field_ >= field; }

 private:
  bool Spend(std::size_t size);
  // Takes from what is left; where that isn't enough the builder is full.
  bool Take(std::size_t count, std::size_t& left);
  bool SpendParagraph(const FormatState& state);
  void AppendText(std::string_view utf8, const FormatState& state);
  void AddRun(Run run);
  void PushRun(Run run);
  void CloseParagraph(const FormatState& state);
  void CloseCell(const FormatState& state);
  // Cells that no end of a row followed become a row of their own.
  void EndOpenRow();
  Paragraph TakeParagraph(const FormatState& state);
  // The section break that nothing has followed yet; null if there is none.
  std::string* OpenSectionBreak();

  std::vector<Block>& blocks_;
  std::size_t room_;
  std::size_t paragraphs_left_ = kMostParagraphs;
  std::size_t row_left_ = kLongestRow;  // paragraphs
  std::size_t runs_left_ = kMostRuns;
  std::size_t text_left_ = kMostText;
  std::size_t paragraph_text_left_ = kLongestParagraph;
  bool is_full_ = false;
  bool has_text_ = false;
  Paragraph paragraph_;
  std::string marker_;
  std::vector<Paragraph> cell_;
  std::vector<std::vector<Paragraph>> row_;
  RowDefinition row_definition_;
  CharacterFormat blank_;
  std::string epilogue_;
  int last_field_ = kNoField;
};

}  // namespace tarnwell::richtext
