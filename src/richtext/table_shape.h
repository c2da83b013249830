// Rows and columns of a table that come and go.

#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "richtext/merged_cells.h"
#include "richtext/table_edit.h"

namespace tarnwell::richtext {

struct TableCell {
  std::size_t row = 0;
  std::size_t cell = 0;
};

// The grid of a table and the parts of it that its cells show themselves on.
class TableShape {
 public:
  explicit TableShape(const Table& table);

  const TableGrid& grid() const { return grid_; }
  const CellSpan& SpanOf(std::size_t row, std::size_t cell) const { return spans_[row][cell]; }
  // The first column of a cell, and the one behind its last.
  int BeginOf(std::size_t row, std::size_t cell) const { return begins_[row][cell]; }
  int EndOf(std::size_t row, std::size_t cell) const {
    return begins_[row][cell] + grid_.spans[row][cell];
  }
  // Where a column begins, in twips from the table's left edge.
  int EdgeOf(int column) const;
  // The cell goes on one that stands above it.
  bool GoesOnFromAbove(const Table& table, std::size_t row, std::size_t cell) const;

 private:
  TableGrid grid_;
  std::vector<std::vector<CellSpan>> spans_;
  std::vector<std::vector<int>> begins_;
};

// Does it to the rows or columns of the cells from one of `cells` to the other; a table that gets
// wider than `text_width` twips shares its width anew. Without its last row or column a table has
// no rows. Gives the cell where the cursor belongs, which may lie behind the last.
TableCell Reshape(Table& table, const std::pair<TableCell, TableCell>& cells, TableEdit edit,
                  int text_width);

}  // namespace tarnwell::richtext
