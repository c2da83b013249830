// The cells and rows of a year's sheet.

#include <algorithm>

#include "parts/sheet_rows.h"
#include "storage/sequential_file.h"
#include "text/date_names.h"
#include "text/letters.h"
#include "year_sheet/year_sheet.h"

namespace tarnwell::year_sheet {
namespace {

constexpr int kRowsWithNames = 20;          // are looked through for one
constexpr std::size_t kLongestAmount = 20;  // characters that can be typed
constexpr double kNumberShare = 0.04;
constexpr double kNameShare = 0.16;  // the amounts part the rest

}  // namespace

forms::GridColumn AmountColumn(std::string_view title, bool editable) {
  return {.title = std::string(title),
          .align = forms::GridAlign::kRight,
          .editable = editable,
          .numeric = true,
          .max_length = kLongestAmount};
}

void YearSheet::BuildGrid() {
  std::vector<forms::GridColumn> columns{
      {.title = "", .share = kNumberShare, .align = forms::GridAlign::kRight},
      {.title = std::string(style_.name_title), .share = kNameShare, .editable = true}};
  for (const std::string_view month : text::kMonthNames) {
    columns.push_back(AmountColumn(month.substr(0, text::kShortNameLength), true));
  }
  for (forms::GridColumn& column : MoreColumns()) columns.push_back(std::move(column));
  const double rest = 1 - kNumberShare - kNameShare;
  for (std::size_t i = kFirstMonth; i < columns.size(); ++i) {
    columns[i].share = rest / static_cast<double>(columns.size() - kFirstMonth);
  }
  grid.SetColumns(std::move(columns), 1, 2);
}

void YearSheet::ConnectGrid() {
  grid.on_select = [this] { Moved(); };
  grid.on_validate = [this](int row, int column, std::string& text) {
    return TakesCell(row, column, text);
  };
  grid.on_edit = [this](int row, int) { Edited(row); };
  grid.on_heading = [this](int column) { Sort(column); };
}

void YearSheet::Fill(const Rows& rows) {
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  grid.SetSortMark(std::nullopt);
  parts::SetSheetRows(grid, static_cast<int>(rows.size()));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < rows[i].size(); ++j) {
      grid.SetText(static_cast<int>(i) + 1, static_cast<int>(j) + kName, rows[i][j]);
    }
  }
}

Rows YearSheet::ShownRows() const {
  Rows rows;
  for (int i = 1; i < grid.rows(); ++i) {
    Row& row = rows.emplace_back();
    for (int column = kName; column < grid.columns(); ++column) row.push_back(grid.text(i, column));
  }
  return rows;
}

bool YearSheet::HasNames() const {
  for (int row = 1; row <= std::min(kRowsWithNames, grid.rows() - 1); ++row) {
    if (!text::Trim(grid.text(row, kName)).empty()) return true;
  }
  return false;
}

void YearSheet::GoToStart() {
  grid.SetCurrent({1, kName});
  delete_row.SetEnabled(false);
  ShowCell();
}

void YearSheet::Moved() {
  CursorMoved();
  delete_row.SetEnabled(is_readable_);
  ShowCell();
}

void YearSheet::ShowCell() {
  const auto [row, column] = grid.current();
  location.SetCaption("C" + std::to_string(column) + ":R" + std::to_string(row));
  copy_right.SetEnabled(is_readable_ && column != kName && column != kLastMonth);
  box.SetText(grid.text(row, column));
}

// After a box the person stands in the cell that it was about, wherever they were going.
bool YearSheet::TakesCell(int row, int column, std::string& text) {
  if (column == kName) {
    text = storage::WithoutQuotes(text);
    return true;
  }
  const CellAmount amount = AmountOfCell(text, style_.amounts);
  text = amount.text;
  if (amount.fault == AmountFault::kNone) return true;
  grid.SetCurrent({row, column});
  Message({"Invalid Cell Entry",
           std::string(amount.fault == AmountFault::kNoNumber ? "Cell entries must be numbers only!"
                                                              : style_.amounts.too_large),
           forms::Icon::kExclamation});
  return true;
}

void YearSheet::Edited(int row) {
  MarkChanged();
  Recompute(row);
  ShowCell();
}

void YearSheet::TypedInBox() {
  const auto [row, column] = grid.current();
  if (row == 0) {
    box.SetText({});
    Message(
        {"Data Entry", "First, select Grid location for data entry.", forms::Icon::kExclamation});
    return;
  }
  const std::string typed = storage::WithoutQuotes(box.text());
  const BoxEntry entry = column == kName ? NameOfBox(typed) : AmountOfBox(typed, style_.amounts);
  if (entry.box != box.text()) {
    box.SetText(entry.box);
    box.PlaceCaret(entry.box.size());
  }
  if (entry.was_too_large) context_.window.Beep();
  grid.SetText(row, column, entry.cell);
  MarkChanged();
  Recompute(row);
}

void YearSheet::CopyRight() {
  const auto [row, column] = grid.current();
  if (column >= kLastMonth) return;
  const forms::Grid::Batch batch(grid);
  for (int next = column + 1; next <= kLastMonth; ++next) {
    grid.SetText(row, next, grid.text(row, column));
  }
  MarkChanged();
  Recompute(row);
}

void YearSheet::Insert() {
  if (EndEdit()) InsertRow(grid.current().row);
}

void YearSheet::RemovePicked() {
  if (!EndEdit()) return;
  const int row = grid.current().row;
  grid.SetHighlight(row);
  const bool is_sure = Confirmed({"Delete Row", "Do you really want to delete this row?",
                                  forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
  grid.SetHighlight(0);
  if (!is_sure) return;
  RemoveRow(row);
  MarkChanged();
  delete_row.SetEnabled(false);
  Recompute(0);
  ShowCell();
}

void YearSheet::Sort(int column) {
  parts::SortSheet(grid, column);
  MarkChanged();
  ShowCell();
}

}  // namespace tarnwell::year_sheet
