// A long table as several of Qt's, one below the other: Qt lays a table out as a whole, with each
// letter that is typed in it.

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "richtext/merged_cells.h"
#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// A table of so many cells is still one.
inline constexpr std::size_t kMostCellsInOne = 1200;
inline constexpr std::size_t kCellsOfPart = 200;

using TableRows = std::vector<const richtext::TableRow*>;

// The tables from `block` on that follow each other: all their rows that have cells.
struct AdjacentTables {
  TableRows rows;
  std::size_t end = 0;  // the first block behind them
};
AdjacentTables TablesAt(const richtext::RichDocument& document, std::size_t block);

// The number of the row behind the part that begins with the row `first`.
std::size_t EndOfPart(const TableRows& rows, std::size_t first);

using CellSpans = std::vector<std::vector<richtext::CellSpan>>;
// Of the rows from `first` up to `end`, by row from there on. A cell is merged within its part.
CellSpans SpansOfPart(const TableRows& rows, const richtext::TableGrid& grid, std::size_t first,
                      std::size_t end);

// The numbers of the paragraphs before which Qt has an empty block of its own: where a part of a
// table follows another, and where a document begins with a table.
std::vector<int> FillersIn(const richtext::RichDocument& document);

// The numbers of the paragraphs that Qt's text doesn't have: those of cells that lie under a merged
// one.
std::vector<int> CoveredIn(const richtext::RichDocument& document);

// Whether any cell of the rows is merged with another.
bool HasMergedCells(std::span<const richtext::TableRow* const> rows);

// The range with the whole of each table of several parts in which it begins or ends: what Qt shows
// of a selection that isn't within one part.
richtext::Range WithWholeTables(const richtext::RichDocument& document, richtext::Range range);

}  // namespace tarnwell::desktop
