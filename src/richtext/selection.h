// What a range selects: the same for every operation and for what a view paints.
//
// Between two cells of a table: the rectangle of whole cells that the two span. Where a range goes
// over a table's edge: that whole table, and of a paragraph beside it only what it holds itself.
// Everywhere else: the text between.

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "richtext/paragraphs.h"
#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

struct Selected {
  enum class Kind { kText, kCells, kTables };
  Kind kind = Kind::kText;
  // In reading order and at least one. kCells: the whole of each cell. kTables: a single one, from
  // a table's beginning or to its end.
  std::vector<Range> parts;

  Position begin() const { return parts.front().from; }
  bool Holds(Position position) const;
};

Selected SelectedBy(const RichDocument& document, const Range& range);

// The cells of a row that are part of a rectangle: from `begin` up to `end`.
struct RowPart {
  std::size_t row = 0;
  std::size_t begin = 0;
  std::size_t end = 0;
};
// Of the rectangle that two cells of the table span. Rows without a cell in it are left out.
std::vector<RowPart> CellsBetween(const Table& table, const Place& first, const Place& last);

// What the range shows, in UTF-8, a line feed between two paragraphs.
std::string SelectedText(const RichDocument& document, const Range& range);

// The formats of the characters, and those of paragraphs that are empty, until `visit` has seen
// enough and says false.
void ForEachFormat(const RichDocument& document, const Range& range,
                   const std::function<bool(const CharacterFormat&)>& visit);

}  // namespace tarnwell::richtext
