#pragma once

#include <vector>

#include "richtext/table_grid.h"

namespace tarnwell::richtext {

// The part of a grid that a cell shows itself on.
struct CellSpan {
  int columns = 1;
  int rows = 1;
  bool is_covered = false;  // lies under a cell to its left or above it, and isn't shown
};

// By row and cell. A cell is merged with what stands to its left by "\clmrg" and with what stands
// above it by "\clvmrg", if a cell of the same left edge begins there with "\clvmgf".
std::vector<std::vector<CellSpan>> CellSpansOf(const std::vector<const TableRow*>& rows,
                                               const TableGrid& grid);

}  // namespace tarnwell::richtext
