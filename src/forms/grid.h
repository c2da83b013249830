#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/grid_look.h"

namespace tarnwell::forms {

enum class GridAlign { kLeft, kCenter, kRight };

struct GridColumn {
  std::string title;
  double share = 0.1;  // of the grid's width
  GridAlign align = GridAlign::kLeft;
  bool editable = false;
  bool numeric = false;                   // sorted by the numbers that its cells begin with
  std::size_t max_length = 255;           // characters that can be typed
  std::vector<std::string> choices = {};  // offered when a cell is edited
};

// How one cell differs from its column.
struct GridCellStyle {
  std::optional<Color> color;  // of the text
  bool bold = false;

  friend bool operator==(const GridCellStyle&, const GridCellStyle&) = default;
};

struct GridPlace {
  int row = 0;
  int column = 0;

  friend bool operator==(const GridPlace&, const GridPlace&) = default;
};

// Cells of text in rows and columns. Row 0 is the heading row, of the columns' titles. The first
// columns may be fixed: a person neither selects nor edits a cell there. What lies outside is
// empty, and setting it does nothing.
class Grid : public Control {
 public:
  Grid(Container& parent, std::string_view name, std::string_view spoken_name);

  // Drops all rows but the heading.
  void SetColumns(std::vector<GridColumn> columns, int fixed_columns = 0);
  int columns() const { return static_cast<int>(columns_.size()); }
  int fixed_columns() const { return fixed_columns_; }
  const GridColumn& column(int index) const { return columns_.at(static_cast<std::size_t>(index)); }
  void SetTitle(int column, std::string_view title);

  // The heading row included, so at least 1.
  int rows() const { return static_cast<int>(rows_.size()) + 1; }
  // New rows are empty; what stands below the last one is dropped.
  void SetRows(int rows);
  // An empty row above that row, or a new last one.
  void InsertRow(int row);
  void RemoveRow(int row);
  // Empties all cells but the heading.
  void ClearCells();
  // By a column's texts, capitals or not, or its numbers. Rows that are equal keep their order.
  void Sort(int column, bool descending);

  const std::string& text(int row, int column) const;
  void SetText(int row, int column, std::string_view text);
  GridCellStyle style(int row, int column) const;
  void SetStyle(int row, int column, const GridCellStyle& style);

  // The cell with the cursor; row 0 for none.
  const GridPlace& current() const { return current_; }
  void SetCurrent(GridPlace place);

  const GridLook& look() const { return look_; }
  void SetLook(const GridLook& look);

  // A person goes to a cell, by a click or the keys.
  void SelectCell(int row, int column);
  // A person ends editing a cell, with that text in it. Goes to the cell first.
  void EditCell(int row, int column, std::string_view text);
  void ClickHeading(int column);
  std::function<void()> on_select;
  std::function<void(int row, int column)> on_edit;
  std::function<void(int column)> on_heading;

  // While one lives, changes are told once, at its end. For filling many cells.
  class Batch {
   public:
    explicit Batch(Grid& grid) : grid_(grid) { ++grid_.batches_; }
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    Grid& grid_;
  };

 private:
  struct Row {
    std::vector<std::string> cells;
    std::map<int, GridCellStyle> styles;  // by column
  };

  bool HasCell(int row, int column) const;
  bool CanSelect(int row, int column) const;
  Row& RowAt(int row) { return rows_[static_cast<std::size_t>(row - 1)]; }
  const Row& RowAt(int row) const { return rows_[static_cast<std::size_t>(row - 1)]; }
  Row EmptyRow() const { return {std::vector<std::string>(columns_.size()), {}}; }
  void KeepCurrentInside();
  void CellsChanged();

  std::vector<GridColumn> columns_;
  int fixed_columns_ = 0;
  std::vector<Row> rows_;  // without the heading
  GridPlace current_;
  GridLook look_;
  int batches_ = 0;
};

}  // namespace tarnwell::forms
