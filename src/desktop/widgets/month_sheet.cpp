#include "desktop/widgets/month_sheet.h"

#include <algorithm>

namespace tarnwell::desktop {
namespace {

text::Date StartOfWeek(text::Date date, unsigned first_weekday) {
  const unsigned days_back = (text::WeekdayOf(date) + kDaysOfWeek - first_weekday) % kDaysOfWeek;
  return text::AddDays(date, -static_cast<int>(days_back));
}

}  // namespace

Month Clamped(Month month) { return std::clamp(month, kFirstMonth, kLastMonth); }

std::array<text::Date, kDaysOfWeek * kWeeksOfSheet> DaysOfSheet(Month month,
                                                                unsigned first_weekday) {
  std::array<text::Date, kDaysOfWeek * kWeeksOfSheet> days{};
  text::Date day = StartOfWeek(month / std::chrono::day{1}, first_weekday);
  for (text::Date& place : days) {
    place = day;
    day = text::AddDays(day, 1);
  }
  return days;
}

int WeekNumber(text::Date date, unsigned first_weekday) {
  constexpr unsigned kMonday = 1;
  if (first_weekday == kMonday) {
    // A week belongs to the year that its Thursday lies in.
    const text::Date thursday = text::AddDays(StartOfWeek(date, kMonday), 3);
    const text::Date first{thursday.year(), std::chrono::January, std::chrono::day{1}};
    return text::DaysBetween(first, thursday) / kDaysOfWeek + 1;
  }
  // A week that reaches into the next year is that year's first one.
  const text::Date last_day = text::AddDays(StartOfWeek(date, first_weekday), kDaysOfWeek - 1);
  const text::Date new_year{last_day.year(), std::chrono::January, std::chrono::day{1}};
  return text::DaysBetween(StartOfWeek(new_year, first_weekday), last_day) / kDaysOfWeek + 1;
}

text::Date SameDayOf(Month month, text::Date date) {
  const auto last = (month / std::chrono::last).day();
  return month / std::min(date.day(), last);
}

}  // namespace tarnwell::desktop
