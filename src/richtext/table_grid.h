#pragma once

#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

inline constexpr int kNearly = 60;  // twips; edges that lie no further apart count as one

// A table as a grid with the edges of all its rows, so that each cell takes one or more columns.
struct TableGrid {
  int left_edge = 0;                    // twips from the page's left margin
  std::vector<int> widths;              // of the columns, in twips, each above 0
  std::vector<std::vector<int>> spans;  // the columns that each cell takes, by row; together all

  bool operator==(const TableGrid&) const = default;
};

// Edges that nearly meet are taken as one. The first and last cells of a row reach to the grid's
// ends. A table of very many different edges gets columns of equal width instead.
TableGrid GridOf(const std::vector<const TableRow*>& rows);

}  // namespace tarnwell::richtext
