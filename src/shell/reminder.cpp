#include "shell/reminder.h"

#include <algorithm>

#include "planner/day_store.h"
#include "text/letters.h"

namespace tarnwell::shell {

bool HasAppointments(storage::ProgramFolder& folder, text::Date day) {
  const auto stored = planner::ReadDay(folder, day);
  return stored && stored->saved && std::ranges::any_of(stored->rows, [](const auto& row) {
           return !text::Trim(row.entry).empty();
         });
}

}  // namespace tarnwell::shell
