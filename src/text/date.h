// Calendar dates and moments. The calendar itself is the standard library's.

#pragma once

#include <chrono>

namespace tarnwell::text {

using Date = std::chrono::year_month_day;

// A moment of local time, to the second.
struct Moment {
  Date date;
  std::chrono::seconds time_of_day{0};  // 0 to 86399

  friend bool operator==(const Moment&, const Moment&) = default;
};

inline Date MakeDate(int year, unsigned month, unsigned day) {
  return {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
}

inline int YearOf(Date date) { return static_cast<int>(date.year()); }
inline unsigned MonthOf(Date date) { return static_cast<unsigned>(date.month()); }
inline unsigned DayOf(Date date) { return static_cast<unsigned>(date.day()); }

// 0 Sunday to 6 Saturday. Needs date.ok().
inline unsigned WeekdayOf(Date date) {
  return std::chrono::weekday{std::chrono::sys_days{date}}.c_encoding();
}

inline Date AddDays(Date date, int days) {
  return std::chrono::sys_days{date} + std::chrono::days{days};
}

inline int DaysBetween(Date from, Date to) {
  return static_cast<int>((std::chrono::sys_days{to} - std::chrono::sys_days{from}).count());
}

}  // namespace tarnwell::text
