#include "planner/sheet_import.h"

#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

// As the sheet's file can hold it, so that the next import finds it again.
Imported Place(DayLines& lines, const std::string& entry, const std::string& fitted) {
  const Placed placed =
      PlaceEntry(lines, storage::WithoutQuotes(entry), storage::WithoutQuotes(fitted));
  return {placed != Placed::kNoRoom, placed == Placed::kPlaced};
}

}  // namespace

Imported ImportRows(DayLines& lines, const DayRows& rows, const PlannerImport& how) {
  Imported all;
  for (const DayRow& row : rows) {
    const std::string entry = text::Trim(how.with_times ? row.time + " " + row.entry : row.entry);
    if (!entry.empty()) all.Add(Place(lines, entry, how.fit ? how.fit(entry) : entry));
  }
  if (all.changed) SortLines(lines, how.sort);
  return all;
}

Imported ImportItems(MonthSheet& sheet, text::Date month, const std::vector<ToDoItem>& items) {
  Imported all;
  for (const ToDoItem& item : items) {
    if (MonthOfSheet(item.date) != MonthOfSheet(month)) continue;
    all.Add(Place(sheet.DayOf(item.date), item.entry, item.entry));
  }
  return all;
}

}  // namespace tarnwell::planner
