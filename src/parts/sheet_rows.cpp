#include "parts/sheet_rows.h"

#include <string>

#include "text/letters.h"

namespace tarnwell::parts {
namespace {

void NumberRows(forms::Grid& grid) {
  if (grid.fixed_columns() == 0) return;
  const forms::Grid::Batch batch(grid);
  for (int row = 1; row < grid.rows(); ++row) grid.SetText(row, 0, std::to_string(row));
}

}  // namespace

void SetSheetRows(forms::Grid& grid, int rows) {
  grid.SetRows(rows + 1);
  NumberRows(grid);
}

bool IsSheetRowBlank(const forms::Grid& grid, int row) {
  for (int column = grid.fixed_columns(); column < grid.columns(); ++column) {
    if (!text::Trim(grid.text(row, column)).empty()) return false;
  }
  return true;
}

int FirstBlankCell(const forms::Grid& grid, int column) {
  for (int row = 1; row < grid.rows(); ++row) {
    if (text::Trim(grid.text(row, column)).empty()) return row;
  }
  return 0;
}

bool InsertSheetRow(forms::Grid& grid, int row) {
  const int last = grid.rows() - 1;
  if (row < 1 || row > last || !IsSheetRowBlank(grid, last)) return false;
  {
    const forms::Grid::Batch batch(grid);
    grid.InsertRow(row);
    grid.SetRows(last + 1);
  }
  NumberRows(grid);
  return true;
}

void DeleteSheetRow(forms::Grid& grid, int row) {
  const int rows = grid.rows();
  const forms::GridPlace cursor = grid.current();
  {
    const forms::Grid::Batch batch(grid);
    grid.RemoveRow(row);
    grid.SetRows(rows);
    grid.SetCurrent(cursor);
  }
  NumberRows(grid);
}

void ClearSheet(forms::Grid& grid) {
  const forms::Grid::Batch batch(grid);
  grid.ClearCells();
  NumberRows(grid);
}

std::vector<int> SortSheet(forms::Grid& grid, int column, const forms::GridSortKey& key) {
  const auto mark = grid.sort_mark();
  const bool descending = mark && mark->column == column && !mark->descending;
  std::vector<int> order = grid.Sort(column, descending, key);
  NumberRows(grid);
  return order;
}

}  // namespace tarnwell::parts
