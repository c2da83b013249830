#include "planner/sheet_import.h"

#include <string_view>

#include "planner/sheet_lines.h"
#include "storage/sequential_file.h"

namespace tarnwell::planner {
namespace {

using Fit = std::function<std::string(const std::string&)>;

// As the sheet's file can hold it, so that the next import finds it again.
Imported Place(DayLines& lines, std::string_view entry, const Fit& fit) {
  if (entry.find('"') != entry.npos) return Place(lines, storage::WithoutQuotes(entry), fit);
  const Placed placed =
      fit ? PlaceEntry(lines, entry, fit(std::string(entry))) : PlaceEntry(lines, entry, entry);
  return {placed != Placed::kNoRoom, placed == Placed::kPlaced};
}

}  // namespace

Imported ImportRows(DayLines& lines, const DayRows& rows, const PlannerImport& how) {
  Imported all;
  std::string line;
  for (const DayRow& row : rows) {
    line.clear();
    if (how.with_times) line.append(row.time).append(" ");
    const std::string_view entry = Trimmed(line.append(row.entry));
    if (!entry.empty()) all.Add(Place(lines, entry, how.fit));
  }
  if (all.changed) SortLines(lines, how.sort);
  return all;
}

Imported ImportItems(MonthSheet& sheet, text::Date month, const std::vector<ToDoItem>& items) {
  Imported all;
  for (const ToDoItem& item : items) {
    if (MonthOfSheet(item.date) != MonthOfSheet(month)) continue;
    all.Add(Place(sheet.DayOf(item.date), item.entry, {}));
  }
  return all;
}

}  // namespace tarnwell::planner
