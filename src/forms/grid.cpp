#include "forms/grid.h"

#include <algorithm>
#include <utility>

namespace tarnwell::forms {
namespace {

const std::string kEmpty;

}  // namespace

Grid::Grid(Container& parent, std::string_view name, std::string_view spoken_name)
    : Control(parent, name) {
  SetSpokenName(spoken_name);
}

Grid::Batch::~Batch() {
  if (--grid_.batches_ == 0) grid_.Tell(std::exchange(grid_.pending_, {}));
}

void Grid::Tell(const GridChange& change) {
  if (batches_ > 0) return pending_.Add(change);
  // A listener may change the grid in its turn.
  const GridChange outer = std::exchange(change_, change);
  Changed();
  change_ = outer;
}

bool Grid::HasCell(int row, int column) const {
  return row >= 1 && row < rows() && column >= 0 && column < columns();
}

void Grid::SetColumns(std::vector<GridColumn> columns, int fixed_columns, int held_columns) {
  columns_ = std::move(columns);
  fixed_columns_ = fixed_columns;
  held_columns_ = std::max(fixed_columns, held_columns);
  cells_.SetColumns(static_cast<int>(columns_.size()));
  history_.Forget();
  current_ = {};
  typed_.reset();
  highlight_ = 0;
  sort_mark_.reset();
  selected_.clear();
  Tell({.columns = true, .rows = true, .cursor = true, .marks = true});
}

void Grid::SetTitle(int column, std::string_view title) {
  if (column < 0 || column >= columns()) return;
  columns_[static_cast<std::size_t>(column)].title = title;
  Tell({.titles = true});
}

void Grid::SetChoices(int column, std::vector<std::string> choices) {
  if (column < 0 || column >= columns()) return;
  columns_[static_cast<std::size_t>(column)].choices = std::move(choices);
}

// Cursor and marks stay in rows that there are.
void Grid::KeepCurrentInside() {
  typed_.reset();
  if (!HasCell(current_.row, current_.column)) current_ = {};
}

void Grid::MoveRows(const std::function<int(int)>& to) {
  history_.MoveRows(to);
  for (int& row : selected_) row = to(row);
  std::erase(selected_, 0);
  std::ranges::sort(selected_);
  if (highlight_ > 0) highlight_ = to(highlight_);
  KeepCurrentInside();
  Tell({.rows = true, .cursor = true, .marks = true, .cells = AllCells()});
}

void Grid::SetRows(int rows) {
  const int before = this->rows();
  const int after = std::max(rows, 1);
  if (after == before) return;
  cells_.SetRows(after - 1);
  if (after > before) return Tell({.rows = true});
  MoveRows([after](int row) { return row < after ? row : 0; });
}

void Grid::InsertRow(int row) {
  const int place = std::clamp(row, 1, rows());
  cells_.Insert(place);
  MoveRows([place](int old) { return old < place ? old : old + 1; });
}

void Grid::RemoveRow(int row) {
  if (!HasCell(row, 0)) return;
  cells_.Remove(row);
  MoveRows([row](int old) { return old == row ? 0 : old - (old > row ? 1 : 0); });
}

void Grid::ClearCells() {
  cells_.Clear();
  history_.Forget();
  typed_.reset();
  Tell({.cursor = true, .cells = AllCells()});
}

std::vector<int> Grid::Sort(int column, bool descending, const GridSortKey& key) {
  if (column < 0 || column >= columns()) return {};
  const bool numeric = columns_[static_cast<std::size_t>(column)].numeric;
  std::vector<int> order = cells_.Sort({.column = column,
                                        .numeric = numeric,
                                        .descending = descending,
                                        .fixed_columns = fixed_columns_,
                                        .key = &key});
  std::vector<int> places(order.size() + 1);
  for (std::size_t i = 0; i < order.size(); ++i) {
    places[static_cast<std::size_t>(order[i])] = static_cast<int>(i) + 1;
  }
  const auto to = [&places](int row) { return places[static_cast<std::size_t>(row)]; };
  sort_mark_ = {column, descending};
  current_.row = to(current_.row);
  MoveRows(to);
  return order;
}

const std::string& Grid::text(int row, int column) const {
  if (row == 0 && column >= 0 && column < columns()) return this->column(column).title;
  return HasCell(row, column) ? cells_.text(row, column) : kEmpty;
}

// What a form writes because of an edit is part of it; all else isn't the person's to undo.
void Grid::KeepHistoryTrue(int row, int column, std::string_view text) {
  if (column < fixed_columns_) return;  // nothing of the person's stands there
  GridEdit* last = history_.last();
  if (taking_ == Taking::kEdit) {
    if (last && last->place == GridPlace{row, column}) last->after = text;
  } else if (taking_ == Taking::kNone && batches_ > 0) {
    history_.Forget();
  } else if (taking_ == Taking::kNone) {
    history_.Forget({row, column});
  }
}

void Grid::SetText(int row, int column, std::string_view text) {
  if (!HasCell(row, column) || !cells_.SetText(row, column, text)) return;
  KeepHistoryTrue(row, column, text);
  Tell({.cells = {row, row, column, column}});
}

GridCellStyle Grid::style(int row, int column) const {
  return HasCell(row, column) ? cells_.style(row, column) : GridCellStyle{};
}

void Grid::SetStyle(int row, int column, const GridCellStyle& style) {
  if (!HasCell(row, column) || !cells_.SetStyle(row, column, style)) return;
  Tell({.cells = {row, row, column, column}});
}

void Grid::Place(GridPlace place) {
  if (current_ == place) return;
  current_ = place;
  KeepCurrentInside();
  Tell({.cursor = true, .marks = selection_ != GridSelection::kCell});
}

void Grid::SetCurrent(GridPlace place) {
  ++placings_;
  Place(place);
}

void Grid::SetHighlight(int row) {
  const int place = row >= 1 && row < rows() ? row : 0;
  if (highlight_ == place) return;
  highlight_ = place;
  Tell({.marks = true});
}

void Grid::SetSortMark(std::optional<GridSortMark> mark) {
  sort_mark_ = mark;
  Tell({.marks = true});
}

void Grid::SetSelection(GridSelection selection) {
  selection_ = selection;
  selected_.clear();
  Tell({.marks = true});
}

std::vector<int> Grid::selected_rows() const {
  if (selection_ == GridSelection::kRows) return selected_;
  const bool has_one = selection_ == GridSelection::kRow && current_.row > 0;
  return has_one ? std::vector<int>{current_.row} : std::vector<int>();
}

void Grid::SetSelectedRows(std::vector<int> rows) {
  if (selection_ != GridSelection::kRows) return;
  std::erase_if(rows, [this](int row) { return !HasCell(row, 0); });
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  if (rows == selected_) return;
  selected_ = std::move(rows);
  Tell({.marks = true});
}

void Grid::SetLook(const GridLook& look) {
  if (look_ == look) return;
  look_ = look;
  Tell({.look = true});
}

}  // namespace tarnwell::forms
