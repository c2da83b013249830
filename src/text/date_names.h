#pragma once

#include <array>
#include <string_view>

namespace tarnwell::text {

inline constexpr std::size_t kShortNameLength = 3;

inline constexpr std::array<std::string_view, 12> kMonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

inline constexpr std::array<std::string_view, 7> kWeekdayNames = {
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

// The years that masks write and date texts hold.
inline constexpr int kFirstYear = 100;
inline constexpr int kLastYear = 9999;

}  // namespace tarnwell::text
