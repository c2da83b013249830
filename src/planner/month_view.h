// A month's saved rows as one list.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::planner {

struct MonthRow {
  std::string day;  // " 1st"; only on the first row of a day
  std::string time;
  std::string entry;

  friend bool operator==(const MonthRow&, const MonthRow&) = default;
};

// A blank, the number and "st", "nd", "rd" or "th".
std::string DayLabel(int day);

// "March 2026".
std::string MonthTitle(int year, unsigned month);

// The rows with a text of all saved days, in order; a time alone isn't listed. Empty when the month
// can't be read; `fault` is then why.
std::optional<std::vector<MonthRow>> ListMonth(storage::ProgramFolder& folder, int year,
                                               unsigned month, storage::Fault* fault = nullptr);

}  // namespace tarnwell::planner
