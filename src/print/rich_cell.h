// One cell of a document's table, broken into lines.

#pragma once

#include <optional>
#include <string_view>

#include "print/rich_box.h"

namespace tarnwell::print {

// Where a cell stands, in twips from the left edge of the column, and how far its texts keep off
// its edges.
struct CellPlace {
  int left = 0;
  int right = 0;
  forms::Margins inside;
};

// What the words of a row and its cell say of that, beside the half of the row's gap.
forms::Margins CellMargins(const richtext::TableRow& row, const richtext::Cell& cell);

class RichCell {
 public:
  // Needs the cell to stay until it is constructed.
  RichCell(RichPrinting& printing, const richtext::Cell& cell, const CellPlace& place,
           int most_height);

  RichBox& box() { return box_; }
  const RichBox& box() const { return box_; }
  // What isn't placed yet, with its edges.
  int HeightLeft() const { return box_.HeightLeft() + EdgesHeight(); }
  int EdgesHeight() const { return place_.inside.top + place_.inside.bottom; }

  // Where the first line stands in a row of that height that shows all of the cell.
  int TopInRow(int row_height) const;
  // The table's left edge is at `x`.
  void PlaceFill(PageEngine& engine, int x, int top, int bottom) const;
  // Its upper edge is at `y`.
  void PlaceNext(std::size_t count, int x, int y);
  void PlaceBorders(PageEngine& engine, int x, int top, int bottom) const;

 private:
  richtext::Cell look_;  // without its texts
  CellPlace place_;
  RichBox box_;
};

// The number behind a control word such as "\trrh"; empty if `words` doesn't hold it.
std::optional<int> NumberBehind(std::string_view word, std::string_view words);

}  // namespace tarnwell::print
