#include "forms/grid_cells.h"

#include <algorithm>
#include <numeric>

#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::forms {
namespace {

const std::string kNoText;

bool IsBlank(std::string_view text) { return text.find_first_not_of(' ') == text.npos; }

struct SortKey {
  int blanks = 0;  // 1 for a blank cell, 2 for a row without any text
  double number = 0;
  std::string text;  // in capitals
};

}  // namespace

void GridCells::SetColumns(int columns) {
  rows_.clear();
  columns_ = columns;
}

void GridCells::Insert(int row) { rows_.emplace(rows_.begin() + (row - 1)); }

void GridCells::Remove(int row) { rows_.erase(rows_.begin() + (row - 1)); }

void GridCells::Clear() {
  for (Row& row : rows_) row = {};
}

const std::string& GridCells::text(int row, int column) const {
  const std::vector<std::string>& cells = RowAt(row).cells;
  return cells.empty() ? kNoText : cells[static_cast<std::size_t>(column)];
}

bool GridCells::SetText(int row, int column, std::string_view text) {
  if (this->text(row, column) == text) return false;
  std::vector<std::string>& cells = RowAt(row).cells;
  if (cells.empty()) cells.resize(static_cast<std::size_t>(columns_));
  cells[static_cast<std::size_t>(column)] = text;
  return true;
}

GridCellStyle GridCells::style(int row, int column) const {
  for (const auto& [place, style] : RowAt(row).styles) {
    if (place == column) return style;
  }
  return {};
}

bool GridCells::SetStyle(int row, int column, const GridCellStyle& style) {
  if (this->style(row, column) == style) return false;
  auto& styles = RowAt(row).styles;
  std::erase_if(styles, [column](const auto& entry) { return entry.first == column; });
  if (style != GridCellStyle{}) styles.emplace_back(column, style);
  return true;
}

bool GridCells::HoldsNothing(int row, int fixed_columns) const {
  for (int column = fixed_columns; column < columns_; ++column) {
    if (!IsBlank(text(row, column))) return false;
  }
  return true;
}

std::vector<int> GridCells::Sort(const Order& by) {
  std::vector<SortKey> keys;
  keys.reserve(rows_.size());
  for (int row = 1; row <= rows(); ++row) {
    const std::string& cell = text(row, by.column);
    const std::string counts = by.key && *by.key ? (*by.key)(cell) : cell;
    SortKey& key = keys.emplace_back();
    if (!IsBlank(counts)) {
      if (by.numeric) {
        key.number = text::LeadingNumber(counts);
      } else {
        key.text = text::UpperCase(counts);
      }
    } else {
      key.blanks = HoldsNothing(row, by.fixed_columns) ? 2 : 1;
    }
  }
  std::vector<int> order(rows_.size());
  std::iota(order.begin(), order.end(), 1);
  std::ranges::stable_sort(order, [&](int a, int b) {
    const SortKey& left = keys[static_cast<std::size_t>(a - 1)];
    const SortKey& right = keys[static_cast<std::size_t>(b - 1)];
    if (left.blanks != right.blanks) return left.blanks < right.blanks;
    const SortKey& low = by.descending ? right : left;
    const SortKey& high = by.descending ? left : right;
    return by.numeric ? low.number < high.number
                      : text::CompareIgnoringCase(low.text, high.text) < 0;
  });
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  for (const int row : order) sorted.push_back(std::move(RowAt(row)));
  rows_ = std::move(sorted);
  return order;
}

}  // namespace tarnwell::forms
