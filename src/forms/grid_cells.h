#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/grid_parts.h"

namespace tarnwell::forms {

// The texts and styles of a grid's rows. Rows count from 1, columns from 0, and every place that is
// given has to exist. A row that holds nothing takes no memory for its cells.
class GridCells {
 public:
  int rows() const { return static_cast<int>(rows_.size()); }
  int columns() const { return columns_; }
  // Drops all rows.
  void SetColumns(int columns);
  // New rows are empty; what stands below the last one is dropped.
  void SetRows(int rows) { rows_.resize(static_cast<std::size_t>(rows)); }
  void Insert(int row);
  void Remove(int row);
  void Clear();

  const std::string& text(int row, int column) const;
  // False where it stood there before.
  bool SetText(int row, int column, std::string_view text);
  GridCellStyle style(int row, int column) const;
  bool SetStyle(int row, int column, const GridCellStyle& style);

  struct Order {
    int column = 0;
    bool numeric = false;  // by the numbers that its texts begin with
    bool descending = false;
    int fixed_columns = 0;             // don't count for whether a row holds anything
    const GridSortKey* key = nullptr;  // what a cell counts as; without one its text
  };
  // By a column's texts, capitals or not, or by their numbers. Either way blank cells come behind
  // the others, and rows that hold nothing at all come last. Rows that are equal keep their order.
  // Gives the old place of each row, for the first row first.
  std::vector<int> Sort(const Order& by);

 private:
  struct Row {
    std::vector<std::string> cells;                     // empty, or one for each column
    std::vector<std::pair<int, GridCellStyle>> styles;  // by column; few cells have one
  };

  bool HoldsNothing(int row, int fixed_columns) const;
  Row& RowAt(int row) { return rows_[static_cast<std::size_t>(row - 1)]; }
  const Row& RowAt(int row) const { return rows_[static_cast<std::size_t>(row - 1)]; }

  std::vector<Row> rows_;
  int columns_ = 0;
};

}  // namespace tarnwell::forms
