#include "vehicles/entry_rules.h"

#include <algorithm>

#include "parts/sheet_rows.h"
#include "text/date_reading.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

constexpr int kRowsToFill = 100;

bool Refuse(Tracker& tracker, forms::Grid& grid, forms::GridPlace place, const std::string& why) {
  grid.SetCurrent(place);
  tracker.form.Message({"Entry Error", why, forms::Icon::kExclamation});
  return false;
}

}  // namespace

bool TakeDate(Tracker& tracker, forms::Grid& grid, forms::GridPlace place, std::string& typed) {
  if (text::Trim(typed).empty()) {
    typed.clear();
    return true;
  }
  const auto date = TypedDate(typed, tracker.today());
  typed.clear();
  if (!date) return Refuse(tracker, grid, place, "Invalid Date Entered!");
  if (tracker.checks_dates && *date > tracker.today()) {
    return Refuse(tracker, grid, place, "The Date entry Cannot Exceed the Current Date!");
  }
  typed = ShortDate(*date);
  return true;
}

bool TakeReading(Tracker& tracker, forms::Grid& grid, forms::GridPlace place, float reading) {
  if (reading <= tracker.odometer) return true;
  return Refuse(tracker, grid, place,
                "The " + std::string(tracker.words().reading) +
                    " entry Cannot Exceed the Current Odometer Reading!");
}

void ShowDate(forms::Grid& grid, forms::GridPlace place, const DateRead& date) {
  grid.SetText(place.row, place.column, date.shown);
  forms::GridCellStyle style = grid.style(place.row, place.column);
  style.note = TurnNote(date);
  grid.SetStyle(place.row, place.column, style);
}

void ForgetTurns(forms::Grid& grid, int column) {
  const forms::Grid::Batch batch(grid);
  for (int row = 1; row < grid.rows(); ++row) {
    forms::GridCellStyle style = grid.style(row, column);
    if (style.note.empty()) continue;
    style.note.clear();
    grid.SetStyle(row, column, style);
  }
}

void TellTurn(const Tracker& tracker, const forms::Grid& grid) {
  const std::string note = grid.style(grid.current().row, grid.current().column).note;
  if (!note.empty()) tracker.form.SetStatus(note);
}

void ShowCalendar(const Tracker& tracker, forms::DatePicker& calendar, const forms::Grid& grid,
                  int date_column) {
  const auto [row, column] = grid.current();
  const bool is_date = row > 0 && column == date_column;
  calendar.SetVisible(is_date);
  TellTurn(tracker, grid);
  if (!is_date) return;
  calendar.SetToday(tracker.today());
  calendar.SetDate(text::ReadDate(grid.text(row, column)).value_or(tracker.today()));
}

void PickDay(Tracker& tracker, forms::DatePicker& calendar, forms::Grid& grid, int date_column) {
  const int row = grid.current().row;
  if (row == 0 || !calendar.date()) return;
  if (!tracker.checks_dates || *calendar.date() <= tracker.today()) {
    grid.EditCell(row, date_column, ShortDate(*calendar.date()));
    return;
  }
  tracker.form.Message(
      {"Entry Error", "The Date entry Cannot Exceed the Current Date!", forms::Icon::kExclamation});
  ShowCalendar(tracker, calendar, grid, date_column);
}

int RowsToShow(std::size_t entries, std::size_t most) {
  return static_cast<int>(std::min(entries + kRowsToFill, most));
}

void GrowSheet(forms::Grid& grid, std::size_t most) {
  const int rows = grid.rows() - 1;
  if (rows >= static_cast<int>(most) || parts::IsSheetRowBlank(grid, rows)) return;
  parts::SetSheetRows(grid, std::min(rows + kRowsToFill, static_cast<int>(most)));
}

}  // namespace tarnwell::vehicles
