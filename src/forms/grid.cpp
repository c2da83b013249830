#include "forms/grid.h"

#include <algorithm>

#include "forms/text_field.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::forms {
namespace {

const std::string kEmpty;

}  // namespace

Grid::Grid(Container& parent, std::string_view name, std::string_view spoken_name)
    : Control(parent, name) {
  SetSpokenName(spoken_name);
}

Grid::Batch::~Batch() {
  if (--grid_.batches_ == 0) grid_.Changed();
}

void Grid::CellsChanged() {
  if (batches_ == 0) Changed();
}

bool Grid::HasCell(int row, int column) const {
  return row >= 1 && row < rows() && column >= 0 && column < columns();
}

bool Grid::CanSelect(int row, int column) const {
  return HasCell(row, column) && column >= fixed_columns_;
}

void Grid::SetColumns(std::vector<GridColumn> columns, int fixed_columns) {
  columns_ = std::move(columns);
  fixed_columns_ = fixed_columns;
  rows_.clear();
  current_ = {};
  CellsChanged();
}

void Grid::SetTitle(int column, std::string_view title) {
  if (column < 0 || column >= columns()) return;
  columns_[static_cast<std::size_t>(column)].title = title;
  CellsChanged();
}

void Grid::SetRows(int rows) {
  rows_.resize(static_cast<std::size_t>(std::max(rows, 1) - 1), EmptyRow());
  KeepCurrentInside();
  CellsChanged();
}

void Grid::InsertRow(int row) {
  const int place = std::clamp(row, 1, rows());
  rows_.insert(rows_.begin() + (place - 1), EmptyRow());
  CellsChanged();
}

void Grid::RemoveRow(int row) {
  if (!HasCell(row, 0)) return;
  rows_.erase(rows_.begin() + (row - 1));
  KeepCurrentInside();
  CellsChanged();
}

void Grid::ClearCells() {
  std::ranges::fill(rows_, EmptyRow());
  CellsChanged();
}

void Grid::Sort(int column, bool descending) {
  if (column < 0 || column >= columns()) return;
  const auto place = static_cast<std::size_t>(column);
  const bool numeric = columns_[place].numeric;
  const auto less = [&](const Row& a, const Row& b) {
    const std::string& left = (descending ? b : a).cells[place];
    const std::string& right = (descending ? a : b).cells[place];
    if (numeric) return text::LeadingNumber(left) < text::LeadingNumber(right);
    return text::CompareIgnoringCase(left, right) < 0;
  };
  std::ranges::stable_sort(rows_, less);
  CellsChanged();
}

void Grid::KeepCurrentInside() {
  if (!HasCell(current_.row, current_.column)) current_ = {};
}

const std::string& Grid::text(int row, int column) const {
  if (row == 0 && column >= 0 && column < columns()) return this->column(column).title;
  return HasCell(row, column) ? RowAt(row).cells[static_cast<std::size_t>(column)] : kEmpty;
}

void Grid::SetText(int row, int column, std::string_view text) {
  if (!HasCell(row, column)) return;
  RowAt(row).cells[static_cast<std::size_t>(column)] = text;
  CellsChanged();
}

GridCellStyle Grid::style(int row, int column) const {
  if (!HasCell(row, column)) return {};
  const auto& styles = RowAt(row).styles;
  const auto found = styles.find(column);
  return found == styles.end() ? GridCellStyle{} : found->second;
}

void Grid::SetStyle(int row, int column, const GridCellStyle& style) {
  if (!HasCell(row, column)) return;
  auto& styles = RowAt(row).styles;
  if (style == GridCellStyle{}) {
    styles.erase(column);
  } else {
    styles[column] = style;
  }
  CellsChanged();
}

void Grid::SetCurrent(GridPlace place) {
  current_ = place;
  KeepCurrentInside();
  CellsChanged();
}

void Grid::SetLook(const GridLook& look) {
  look_ = look;
  CellsChanged();
}

void Grid::SelectCell(int row, int column) {
  if (!Reachable() || !CanSelect(row, column)) return;
  SetCurrent({row, column});
  Run(on_select);
}

void Grid::EditCell(int row, int column, std::string_view text) {
  if (!Reachable() || !CanSelect(row, column) || !this->column(column).editable) return;
  if (current_ != GridPlace{row, column}) SelectCell(row, column);
  // Going there may have led elsewhere.
  if (current_ != GridPlace{row, column}) return;
  SetText(row, column, TypedText(text, this->column(column).max_length));
  if (on_edit) on_edit(row, column);
}

void Grid::ClickHeading(int column) {
  if (Reachable() && column >= fixed_columns_ && column < columns() && on_heading) {
    on_heading(column);
  }
}

}  // namespace tarnwell::forms
