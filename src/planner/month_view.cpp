#include "planner/month_view.h"

#include "planner/day_store.h"
#include "text/date_names.h"
#include "text/letters.h"

namespace tarnwell::planner {

std::string DayLabel(int day) {
  const char* ending = "th";
  if (day / 10 != 1) {
    if (day % 10 == 1) ending = "st";
    if (day % 10 == 2) ending = "nd";
    if (day % 10 == 3) ending = "rd";
  }
  return " " + std::to_string(day) + ending;
}

std::string MonthTitle(int year, unsigned month) {
  return std::string(text::kMonthNames.at(month - 1)) + " " + std::to_string(year);
}

std::optional<std::vector<MonthRow>> ListMonth(storage::ProgramFolder& folder, int year,
                                               unsigned month, storage::Fault* fault) {
  const auto days = ReadMonth(folder, year, month, fault);
  if (!days) return std::nullopt;
  std::vector<MonthRow> rows;
  int day = 0;
  for (const PlannerDay& stored : *days) {
    std::string label = DayLabel(++day);
    for (const DayRow& row : stored.rows) {
      if (text::Trim(row.entry).empty()) continue;
      rows.push_back({label, row.time, row.entry});
      label.clear();
    }
  }
  return rows;
}

}  // namespace tarnwell::planner
