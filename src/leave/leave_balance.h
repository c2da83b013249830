// What an employee has used of a year's leave, and what is left of it.

#pragma once

#include <optional>
#include <span>
#include <string>

#include "forms/color.h"

namespace tarnwell::leave {

inline constexpr const char* kDaysMask = "###.00";
inline constexpr forms::Color kOverdrawn = 0x000080;  // of a balance below 0: dark red

// The texts of a row's two computed cells, by kDaysMask. Without a value the cell keeps what stands
// in it.
struct LeaveBalance {
  std::optional<std::string> used;     // 999.99 at most
  std::optional<std::string> balance;  // authorised less used; none where nothing is authorised
};

// Sums the days of the months, each by the number that its text begins with, in single precision. A
// row without a name, or with a sum of exactly 0, keeps both cells: taking out all days doesn't
// take out what was computed from them.
LeaveBalance ComputeBalance(const std::string& name, std::span<const std::string, 12> months,
                            const std::string& authorized);

}  // namespace tarnwell::leave
