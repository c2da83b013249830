#include "vehicles/due.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "text/date_names.h"
#include "text/date_reading.h"
#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

constexpr double kMostMonths = 12 * text::kLastYear;

// Whole boundaries between months.
int MonthsBetween(text::Date from, text::Date to) {
  return 12 * (text::YearOf(to) - text::YearOf(from)) + static_cast<int>(text::MonthOf(to)) -
         static_cast<int>(text::MonthOf(from));
}

TimeLeft TimeUntil(text::Date due, text::Date today) {
  const int months = MonthsBetween(today, due);
  if (std::abs(months) > 1) return {months, true};
  return {text::DaysBetween(today, due), false};
}

bool IsWithin(float left, float most) { return left >= 1 && left <= most; }

}  // namespace

text::Date MonthsLater(text::Date date, double months) {
  const double whole = std::max(1.0, std::round(std::min(months, kMostMonths)));
  const auto month = date.year() / date.month() + std::chrono::months(static_cast<int>(whole));
  const text::Date later = month / date.day();
  return later.ok() ? later : text::Date(month / std::chrono::last);
}

Due DueOf(const ActionTimes& action, float odometer, text::Date today) {
  Due due;
  if (!action.is_named) return due;
  if (action.distance) {
    due.distance_left = *action.distance + action.odometer - odometer;
    due.by_distance = *due.distance_left <= 0;
  }
  if (action.months <= 0 || !action.date) return due;
  const text::Date next = MonthsLater(*action.date, action.months);
  due.time_left = TimeUntil(next, today);
  due.by_time = due.time_left->count <= 0;
  return due;
}

std::string DistanceLeftText(const Due& due) {
  return due.distance_left ? text::FormatNumber(*due.distance_left, "#,###,###") : std::string();
}

std::string TimeLeftText(const Due& due) {
  if (!due.time_left) return {};
  const auto& [count, in_months] = *due.time_left;
  if (in_months) return std::to_string(count) + " mos.";
  return std::to_string(count) + (count == 1 ? " day" : " days");
}

ActionTimes TimesOf(const ScheduleRow& row) {
  ActionTimes times;
  times.is_named = row.action.find_first_not_of(' ') != std::string::npos;
  if (!times.is_named) return times;
  if (const float distance = WholeNumber(row.distance); distance != 0) times.distance = distance;
  times.months = text::LeadingNumber(row.months);
  times.odometer = WholeNumber(row.odometer);
  times.date = text::ReadDate(row.date.shown);
  return times;
}

bool IsNear(const Due& due, const Nearness& wanted) {
  if (due.is_due()) return true;
  const float days =
      due.time_left && !due.time_left->in_months ? static_cast<float>(due.time_left->count) : 0;
  const float distance = due.distance_left.value_or(0);
  return (wanted.in_15_days && IsWithin(days, 15)) || (wanted.in_30_days && IsWithin(days, 30)) ||
         (wanted.in_250 && IsWithin(distance, 250)) || (wanted.in_500 && IsWithin(distance, 500));
}

bool AnyIsNear(std::span<const ScheduleRow> rows, float odometer, text::Date today,
               const Nearness& wanted) {
  return std::ranges::any_of(rows, [&](const ScheduleRow& row) {
    return IsNear(DueOf(TimesOf(row), odometer, today), wanted);
  });
}

bool RegistrationIsDue(std::string_view month, text::Date today) {
  const std::string typed = text::Trim(month);
  if (text::LeadingNumber(typed) == text::MonthOf(today)) return true;
  const std::string_view name = text::kMonthNames[text::MonthOf(today) - 1];
  return text::EqualIgnoringCase(text::Left(typed, text::kShortNameLength),
                                 name.substr(0, text::kShortNameLength));
}

}  // namespace tarnwell::vehicles
