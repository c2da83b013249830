// What the words between \trowd and \row say of a row and its cells.

#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/format_reader.h"
#include "richtext/rich_document.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {

class RowDefinition {
 public:
  RowDefinition() = default;
  RowDefinition(const RowDefinition&) = delete;
  RowDefinition& operator=(const RowDefinition&) = delete;

  // \trowd
  void Start();
  // A word of a row, a cell or their borders.
  void Apply(const Token& token, std::string_view source, const FormatTables& tables);
  // The border words that follow are of a row or a cell.
  bool InBorder() const { return in_border_; }
  void LeaveBorder() { in_border_ = false; }

  // How many cells MakeRow makes of so many texts.
  std::size_t CellsFor(std::size_t texts) const { return std::max(texts, row_.cells.size()); }
  // The row with these texts in its cells. A text without a cell of its own gets one an inch wide,
  // unless nothing stands in it; a cell without a text gets an empty one of the format `blank`.
  TableRow MakeRow(std::vector<std::vector<Paragraph>> texts, const CharacterFormat& blank) const;

 private:
  void EndCell(int right_edge);
  void ApplyToBorder(const Token& token, std::string_view source, const FormatTables& tables);

  TableRow row_;
  Cell next_;
  Border* border_ = nullptr;         // the side of next_ that is being read, if one is
  std::string* kept_ = &row_.other;  // of row_ or next_, by the word before
  bool in_border_ = false;
};

}  // namespace tarnwell::richtext
