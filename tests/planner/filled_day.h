#pragma once

#include <algorithm>
#include <vector>

#include "planner/day_rows.h"

namespace tarnwell::planner {

// The day whose first rows these are.
inline DayRows RowsOf(const std::vector<DayRow>& filled) {
  DayRows rows;
  std::copy(filled.begin(), filled.end(), rows.begin());
  return rows;
}

}  // namespace tarnwell::planner
