// Walks through a document's RTF. Internal to ReadRichText.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/code_pages.h"
#include "richtext/document_builder.h"
#include "richtext/format_reader.h"
#include "richtext/rich_document.h"
#include "richtext/rtf_tokenizer.h"
#include "richtext/rtf_words.h"
#include "text/utf8.h"

namespace tarnwell::richtext {

class RtfReader {
 public:
  explicit RtfReader(std::string_view rtf);
  RichDocument Read() &&;

 private:
  // A group whose text is the result of a field.
  struct OpenField {
    std::size_t depth;
    int id;
  };

  // rtf_reader.cpp: the walk, groups and texts.
  void Take(const Token& token);
  bool SkipFallback(const Token& token);
  void TakeBytes(std::string_view bytes);
  void TakeSymbol(const Token& token);
  void TakeUnicode(int number);
  void AddText(std::string_view utf8);
  void EndBytes();
  void PushGroup();
  void PopGroup();
  void EndParagraph(void (DocumentBuilder::*end)(const FormatState&));
  void TouchParagraph(FormatState& changed) { changed.paragraph_version = ++paragraph_versions_; }

  // rtf_reader_words.cpp: control words.
  void TakeWord(const Token& token);
  void TakeStructureWord(const KnownWord& word, const Token& token);
  void TakeDocumentWord(const KnownWord& word, const Token& token);
  void TakePageWord(Word word, const Token& token);
  void TakeBorderWord(const Token& token, std::string_view source);
  void TakeParagraphWord(const KnownWord& word, const Token& token, std::string_view source);
  void TakeUnknownWord(const KnownWord& word, const Token& token, std::string_view source);
  void TakeNestedTable(int level);
  void KeepWordInPlace(std::string_view source);

  // rtf_reader_groups.cpp: groups that aren't text.
  void TakeStar(const Token& star);
  void TakeDestination(const KnownWord& word, std::size_t begin);
  void TakeFonts(std::size_t begin);
  void TakeColors(std::size_t begin);
  void TakeStyles(std::size_t begin);
  void TakePicture(std::size_t begin, bool in_shape_group);
  void TakeField(std::size_t begin);
  void EndField();
  void LeaveFields();
  void TakeListDescription(std::size_t begin);
  void TakeMarker(std::size_t begin);
  void KeepGroup(std::size_t begin);
  void KeepInPlace(std::string rtf);
  void ResetFonts();
  void BeginBody();

  FormatState& state() { return states_.back(); }
  // The same, as the format of something.
  const FormatState& settled() {
    Settle(state());
    return state();
  }

  RichDocument document_;
  FormatTables tables_;
  Tokenizer tokenizer_;
  std::vector<FormatState> states_;
  DocumentBuilder builder_;
  ByteDecoder decoder_;
  text::Utf16Joiner joiner_;
  std::string text_;  // decoded last; kept for its memory
  std::vector<OpenField> open_fields_;
  std::size_t depth_ = 0;    // of groups; states_ stops growing at its bound
  int skip_ = 0;             // bytes still to be left out behind a \u
  bool body_begun_ = false;  // before, what isn't known belongs to the prologue
  bool ended_ = false;
  std::string_view styles_;  // read when the body begins, by when fonts and colours are known
  int paragraph_versions_ = 0;
  // What a group that has ended said of the paragraph whose text stood in it, and whose end didn't.
  std::optional<FormatState> ended_group_;
  // The \pard of this paragraph: a nested table begins there if it turns out to be one. 0: none, or
  // one that is done with.
  std::size_t defaults_begin_ = 0;
  std::size_t defaults_depth_ = 0;
  std::size_t defaults_runs_ = 0;
  bool in_character_border_ = false;  // the border words that follow are of characters
  bool tables_broken_ = false;        // a nested table had no end: don't look for one again
};

}  // namespace tarnwell::richtext
