// What a grid is made of: columns, places, styles, and what a change of it is about.

#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/color.h"

namespace tarnwell::forms {

enum class GridAlign { kLeft, kCenter, kRight };

struct GridColumn {
  std::string title;
  double share = 0.1;  // of the grid's width
  GridAlign align = GridAlign::kLeft;
  bool editable = false;
  bool numeric = false;                   // sorted by the numbers that its cells begin with
  std::size_t max_length = 255;           // characters that can be typed
  std::vector<std::string> choices = {};  // offered when a cell is edited; others can be typed
};

// How one cell differs from its column.
struct GridCellStyle {
  std::optional<Color> color;  // of the text
  bool bold = false;
  std::string note = {};  // what a person should know of the cell, which has a sign then

  friend bool operator==(const GridCellStyle&, const GridCellStyle&) = default;
};

struct GridPlace {
  int row = 0;
  int column = 0;

  friend bool operator==(const GridPlace&, const GridPlace&) = default;
};

// What a person marks: the cell with the cursor, its whole row, or any number of rows.
enum class GridSelection { kCell, kRow, kRows };

// What a cell with this text counts as when its column is sorted; empty counts as blank.
using GridSortKey = std::function<std::string(const std::string& text)>;

// The arrow in a heading.
struct GridSortMark {
  int column = 0;
  bool descending = false;

  friend bool operator==(const GridSortMark&, const GridSortMark&) = default;
};

// Where a key takes the cursor. Next and previous go on in the row below or above.
enum class GridStep { kNext, kPrevious, kUp, kDown };

// Cells from the first to the last row and column, both included.
struct GridArea {
  int first_row = 1;
  int last_row = 0;
  int first_column = 0;
  int last_column = -1;

  bool empty() const { return first_row > last_row || first_column > last_column; }
  int size() const {
    return empty() ? 0 : (last_row - first_row + 1) * (last_column - first_column + 1);
  }
  // The smallest area around both.
  void Add(const GridArea& other) {
    if (other.empty()) return;
    if (empty()) {
      *this = other;
      return;
    }
    first_row = std::min(first_row, other.first_row);
    last_row = std::max(last_row, other.last_row);
    first_column = std::min(first_column, other.first_column);
    last_column = std::max(last_column, other.last_column);
  }
};

// What a notification of a grid is about; nothing where only what every control has has changed.
struct GridChange {
  bool columns = false;  // other columns; all the rest with them
  bool titles = false;
  bool rows = false;    // their number
  bool cursor = false;  // its place, or what is typed there
  bool marks = false;   // the row in hand, the selected rows, the sort mark, the kind of selection
  bool look = false;
  GridArea cells = {};  // whose texts or styles changed

  void Add(const GridChange& other) {
    columns |= other.columns;
    titles |= other.titles;
    rows |= other.rows;
    cursor |= other.cursor;
    marks |= other.marks;
    look |= other.look;
    cells.Add(other.cells);
  }
};

}  // namespace tarnwell::forms
