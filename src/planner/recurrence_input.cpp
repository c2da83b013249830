#include "planner/recurrence_input.h"

#include <algorithm>

#include "text/leading_number.h"

namespace tarnwell::planner {
namespace {

constexpr int kLongestPastDays = 31;
constexpr int kLatestEndDays = 3654;
constexpr int kDefaultSpanDays = 1826;

int LimitOf(NumberBox box) {
  switch (box) {
    case NumberBox::kDays:
    case NumberBox::kOccurrences:
      return 90;
    case NumberBox::kWeeks:
      return 52;
    case NumberBox::kDayOfMonth:
    case NumberBox::kDay:
      return 31;
    case NumberBox::kMonths:
      return 12;
    case NumberBox::kYears:
      return 10;
  }
  return 1;
}

bool IsRefused(char c) { return !(c == ',' || (c >= '/' && c <= '9')); }

// How often a rule fits into ten years if it holds every single day, week, month or year, and the
// interval that divides it. An interval of 0 stands for no limit.
struct TenYears {
  int limit;
  int interval;
};

TenYears TenYearsOf(const RecurrenceRequest& request) {
  switch (request.mode) {
    case RecurrenceMode::kDaily:
      return {3652, request.every_days};
    case RecurrenceMode::kWeekly:
      return {520, request.every_weeks};
    case RecurrenceMode::kMonthly:
      return {120, request.every_months};
    case RecurrenceMode::kYearly:
      return {10, request.every_years};
    case RecurrenceMode::kWeekdays:
    case RecurrenceMode::kHidden:
    case RecurrenceMode::kNone:
      break;
  }
  return {0, 0};
}

}  // namespace

std::string AcceptNumber(NumberBox box, std::string_view text) {
  std::string accepted(text);
  const auto behind_sign = accepted.begin() + (accepted.starts_with('+') ? 1 : 0);
  accepted.erase(std::remove_if(behind_sign, accepted.end(), IsRefused), accepted.end());
  if (accepted.empty()) return "1";
  const int limit = LimitOf(box);
  return text::LeadingNumber(accepted) >= limit + 1 ? std::to_string(limit) : accepted;
}

int NumberIn(std::string_view text) {
  return static_cast<int>(std::clamp(text::LeadingNumber(text), 0.0, 99.0));
}

RecurrenceMode ModeSelectedBy(NumberBox box) {
  switch (box) {
    case NumberBox::kDays:
      return RecurrenceMode::kDaily;
    case NumberBox::kWeeks:
      return RecurrenceMode::kWeekly;
    case NumberBox::kDayOfMonth:
    case NumberBox::kMonths:
      return RecurrenceMode::kMonthly;
    case NumberBox::kDay:
    case NumberBox::kYears:
      return RecurrenceMode::kYearly;
    case NumberBox::kOccurrences:
      break;
  }
  return RecurrenceMode::kNone;
}

int OccurrencesWithinTenYears(const RecurrenceRequest& request) {
  const TenYears ten_years = TenYearsOf(request);
  if (ten_years.interval <= 0) return request.occurrences;
  return std::min(request.occurrences, ten_years.limit / ten_years.interval);
}

text::Date LatestEndDate(text::Date today) { return text::AddDays(today, kLatestEndDays); }

bool IsTooLongAgo(text::Date beginning, text::Date today) {
  return text::DaysBetween(beginning, today) >= kLongestPastDays;
}

text::Date DefaultEndDate(text::Date beginning) {
  return text::AddDays(beginning, kDefaultSpanDays);
}

}  // namespace tarnwell::planner
