// One cell of a document's table, broken into lines.

#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "print/rich_line.h"

namespace tarnwell::print {

struct CellLine {
  RichLine line;
  int gap = 0;  // above it
};

class RichCell {
 public:
  // Between two edges, which are twips from the left edge of the column; texts keep `half_gap` off
  // both.
  RichCell(const richtext::Cell& cell, int left, int right, int half_gap)
      : cell_(cell), left_(left), right_(right), half_gap_(half_gap) {}

  void LayOut(RichStyles& styles, int most_height);

  // The lines that aren't placed yet, and the space below the last one.
  int HeightLeft() const;
  // How many of them fit into `room`.
  std::size_t FittingLines(int room) const;
  // How high the next `count` of them are.
  int HeightOf(std::size_t count) const;
  bool is_done() const { return next_ == lines_.size(); }

  // Where the first line stands in a row of that height that shows all of the cell.
  int TopInRow(int row_height) const;
  void PlaceFill(PageEngine& engine, int top, int bottom) const;
  void PlaceNext(PageEngine& engine, RichStyles& styles, std::size_t count, int y);
  void PlaceBorders(PageEngine& engine, int top, int bottom) const;

 private:
  const richtext::Cell& cell_;
  int left_;
  int right_;
  int half_gap_;
  std::vector<CellLine> lines_;
  std::size_t next_ = 0;  // line that isn't placed yet
  int last_gap_ = 0;      // below the last line
};

// The number behind a control word such as "\trrh"; empty if `words` doesn't hold it.
std::optional<int> NumberBehind(std::string_view word, std::string_view words);

}  // namespace tarnwell::print
