// What the panes of the tracker share, and the rules for what is typed in their cells.

#pragma once

#include <functional>
#include <string>

#include "forms/context.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "vehicles/date_turning.h"
#include "vehicles/unit_words.h"

namespace tarnwell::vehicles {

// The vehicle and the settings that all panes work with.
struct Tracker {
  forms::Form& form;
  forms::Context& context;
  std::function<void()> on_change;  // a person has changed something that is to be saved

  settings::DistanceUnit unit = settings::DistanceUnit::kMiles;
  bool checks_dates = true;  // refuses days that are still to come
  float odometer = 0;        // of the vehicle

  const UnitWords& words() const { return WordsOf(unit); }
  text::Date today() const { return context.clock.Today(); }
};

// For on_validate of a grid: each makes a cell's text of what was typed there. Where a box says
// that it can't be, false comes back; the cell is to be empty then, or as it was, and the person
// stands in it.
bool TakeDate(Tracker& tracker, forms::Grid& grid, forms::GridPlace place, std::string& typed);
bool TakeReading(Tracker& tracker, forms::Grid& grid, forms::GridPlace place, float reading);

// The column shows a date of the file. One that has turned has a sign.
void ShowDate(forms::Grid& grid, forms::GridPlace place, const DateRead& date);
// The file holds what the column shows: no sign is left.
void ForgetTurns(forms::Grid& grid, int column);

// The status bar tells it of the cell with the cursor, for whoever has no pointer to rest on it.
void TellTurn(const Tracker& tracker, const forms::Grid& grid);

// The calendar is there while the cursor is in a date, and fills the cell.
void ShowCalendar(const Tracker& tracker, forms::DatePicker& calendar, const forms::Grid& grid,
                  int date_column);
void PickDay(Tracker& tracker, forms::DatePicker& calendar, forms::Grid& grid, int date_column);

// As many rows as are filled and some to fill.
int RowsToShow(std::size_t entries, std::size_t most);
// More of them once the last one holds something.
void GrowSheet(forms::Grid& grid, std::size_t most);

}  // namespace tarnwell::vehicles
