#include "planner/todo_import.h"

#include "planner/day_sort.h"
#include "planner/day_store.h"
#include "settings/planner_settings.h"
#include "text/date_reading.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr std::size_t kDateWidth = 10;

}  // namespace

std::vector<ToDoItem> ReadToDoItems(storage::SequentialReader& reader) {
  std::vector<ToDoItem> items;
  while (!reader.AtEnd()) {
    const std::string entry = text::Trim(reader.Next());
    const std::string date = reader.Next();
    reader.Next();
    const auto day = text::ReadDate(text::Right(date, kDateWidth));
    if (!entry.empty() && day) items.push_back({text::InCenturyOfWeekday(*day, date), entry});
  }
  return items;
}

bool PlaceToDoEntry(DayRows& rows, const std::string& entry) {
  if (!text::Trim(rows.back().entry).empty()) return false;
  for (DayRow& row : rows) {
    if (!text::Trim(row.time).empty()) continue;
    if (row.entry == entry) return false;
    if (text::Trim(row.entry).empty()) {
      row = {"", entry};
      return true;
    }
  }
  return false;
}

storage::Outcome ImportToDoItem(storage::ProgramFolder& folder, const ToDoItem& item) {
  auto fault = storage::Fault::kNone;
  auto stored = ReadDay(folder, item.date, &fault);
  if (!stored || !PlaceToDoEntry(stored->rows, item.entry)) return fault;
  const auto option = static_cast<SortTimeOption>(settings::ReadSortTime(folder));
  return WriteDay(folder, item.date, SortDay(stored->rows, option));
}

}  // namespace tarnwell::planner
