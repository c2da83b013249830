#pragma once

#include <array>
#include <string>

namespace tarnwell::planner {

inline constexpr int kRowsPerDay = 14;

// One line of a day: a time of the user's own writing and an appointment, either of which may be
// empty.
struct DayRow {
  std::string time;
  std::string entry;

  friend bool operator==(const DayRow&, const DayRow&) = default;
};

using DayRows = std::array<DayRow, kRowsPerDay>;

}  // namespace tarnwell::planner
