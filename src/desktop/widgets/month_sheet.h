// The days of a month as they stand on a calendar sheet.

#pragma once

#include <array>
#include <chrono>
#include <optional>

#include "text/date.h"

namespace tarnwell::desktop {

using Month = std::chrono::year_month;

inline constexpr int kDaysOfWeek = 7;
inline constexpr int kWeeksOfSheet = 6;

// What a date picker can show.
inline constexpr Month kFirstMonth{std::chrono::year{1753}, std::chrono::January};
inline constexpr Month kLastMonth{std::chrono::year{9999}, std::chrono::December};

inline Month MonthOfDate(text::Date date) { return {date.year(), date.month()}; }
Month Clamped(Month month);

// Six whole weeks that hold the month, the first one starting on `first_weekday` (0 Sunday to 6
// Saturday).
std::array<text::Date, kDaysOfWeek * kWeeksOfSheet> DaysOfSheet(Month month,
                                                                unsigned first_weekday);

// 1 for the week that holds 1 January. Of weeks that begin on Monday, 1 is the first one with four
// days of the year, as ISO 8601 counts them.
int WeekNumber(text::Date date, unsigned first_weekday);

// The same day of another month, or that month's last day where it is shorter.
text::Date SameDayOf(Month month, text::Date date);

}  // namespace tarnwell::desktop
