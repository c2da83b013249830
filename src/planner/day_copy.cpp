#include "planner/day_copy.h"

#include <algorithm>

#include "text/letters.h"

namespace tarnwell::planner {

bool IsBlank(const DayRow& row) {
  return text::Trim(row.time).empty() && text::Trim(row.entry).empty();
}

bool HasRows(const DayRows& rows) { return !std::ranges::all_of(rows, IsBlank); }

bool PasteDay(DayRows& rows, const DayRows& copied) {
  bool pasted = false;
  auto source = copied.begin();
  for (DayRow& row : rows) {
    if (!IsBlank(row)) continue;
    const DayRow& from = *source++;
    if (IsBlank(from)) continue;
    row = from;
    pasted = true;
  }
  return pasted;
}

}  // namespace tarnwell::planner
