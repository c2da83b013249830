#include "planner/recurrence.h"

#include <algorithm>

#include "text/date_names.h"

namespace tarnwell::planner {
namespace {

// The length of the walk as the bar takes it: days only within one month, else whole months of 30
// or whole years of 365 days, by the calendar fields alone. Two dates of one month in the wrong
// order, or the same date twice, give 0 or less.
int DatedProgressMaximum(text::Date beginning, text::Date end) {
  const int years = text::YearOf(end) - text::YearOf(beginning);
  if (years >= 1) return 365 * years;
  const int months =
      static_cast<int>(text::MonthOf(end)) - static_cast<int>(text::MonthOf(beginning));
  if (months >= 1) return 30 * months;
  return static_cast<int>(text::DayOf(end)) - static_cast<int>(text::DayOf(beginning));
}

int ProgressMaximumOf(const RecurrenceRequest& request) {
  if (!request.beginning.ok()) return 0;
  if (request.end_kind == EndKind::kEndDateAfter) return request.occurrences;
  return request.end.ok() ? DatedProgressMaximum(request.beginning, request.end) : 0;
}

bool HasRule(RecurrenceMode mode) {
  return mode != RecurrenceMode::kHidden && mode != RecurrenceMode::kNone;
}

bool IsInCalendar(text::Date date) {
  return text::YearOf(date) >= text::kFirstYear && text::YearOf(date) <= text::kLastYear;
}

}  // namespace

// The last offset bounds a rule that matches too seldom, such as the leap day every year.
RecurrenceWalk::Strides RecurrenceWalk::CountedStrides(const RecurrenceRequest& request) {
  const int n = request.occurrences;
  const int d = std::max(request.every_days, 1);
  const int w = request.every_weeks;
  const int m = request.every_months;
  const int y = request.every_years;
  switch (request.mode) {
    case RecurrenceMode::kDaily:
      return {.first = d, .step = d, .last = n * d};
    case RecurrenceMode::kWeekdays:
      return {.first = 1, .step = 1, .last = 2 * n};
    case RecurrenceMode::kWeekly:
      // From two weeks on, only the Beginning Date's own weekday is ever met.
      if (w <= 1) return {.first = 1, .step = 1, .last = 10 * n * w};
      return {.first = 7 * w, .step = 7 * w, .last = 10 * n * w};
    case RecurrenceMode::kMonthly:
      if (m <= 1) return {.first = 1, .step = 1, .last = 31 * n * m};
      return {.first = (m - 1) * 28, .step = 1, .last = 31 * n * m, .skip_after_use = 28 * m};
    case RecurrenceMode::kYearly:
      if (y <= 1) {
        return {
            .first = 1, .step = 1, .last = 366 * n * y, .skip_after_use = 360, .years_apart = 1};
      }
      return {.first = (y - 1) * 360,
              .step = 1,
              .last = 366 * n * y,
              .skip_after_use = 360 * y,
              .years_apart = y};
    case RecurrenceMode::kHidden:
    case RecurrenceMode::kNone:
      break;
  }
  return {};
}

RecurrenceWalk::Strides RecurrenceWalk::DatedStrides(const RecurrenceRequest& request) {
  const int w = request.every_weeks;
  const int m = request.every_months;
  switch (request.mode) {
    case RecurrenceMode::kDaily:
      return {.first = 0, .step = request.every_days};
    case RecurrenceMode::kWeekly:
      return {.first = 0, .step = 1, .skip_after_use = w <= 1 ? 0 : 7 * w - 1};
    case RecurrenceMode::kMonthly:
      if (m <= 1) return {.first = 0, .step = 1, .skip_after_use = 27};
      return {.first = (m - 1) * 28, .step = 1, .skip_after_use = 28 * m - 1};
    case RecurrenceMode::kYearly:
      return {.first = 0, .step = 1, .years_apart = std::max(request.every_years, 1)};
    case RecurrenceMode::kWeekdays:
    case RecurrenceMode::kHidden:
    case RecurrenceMode::kNone:
      break;
  }
  return {.first = 0, .step = 1};
}

RecurrenceWalk::RecurrenceWalk(const RecurrenceRequest& request)
    : request_(request),
      strides_(request.end_kind == EndKind::kEndDateAfter ? CountedStrides(request)
                                                          : DatedStrides(request)),
      progress_maximum_(ProgressMaximumOf(request)),
      offset_(strides_.first),
      target_year_(text::YearOf(request.beginning) + strides_.years_apart),
      last_tried_(request.beginning) {}

// With "End Date:" it is the date last tried that is held against the End Date, so the final
// candidate can lie on it or behind it.
bool RecurrenceWalk::AtEnd() const {
  if (progress_maximum_ <= 0 || !HasRule(request_.mode)) return true;
  if (request_.end_kind == EndKind::kEndDate) return last_tried_ >= request_.end;
  return used_ >= request_.occurrences || offset_ > strides_.last;
}

bool RecurrenceWalk::Applies(text::Date date) const {
  switch (request_.mode) {
    case RecurrenceMode::kDaily:
      return true;
    case RecurrenceMode::kWeekdays:
      return text::WeekdayOf(date) >= 1 && text::WeekdayOf(date) <= 5;
    case RecurrenceMode::kWeekly:
      // The one rule that never enters anything on the End Date itself.
      if (request_.end_kind == EndKind::kEndDate && date >= request_.end) return false;
      return text::WeekdayOf(date) == request_.weekday;
    case RecurrenceMode::kMonthly:
      return text::DayOf(date) == request_.day_of_month;
    case RecurrenceMode::kYearly:
      return text::MonthOf(date) == request_.month && text::DayOf(date) == request_.day &&
             text::YearOf(date) == target_year_;
    case RecurrenceMode::kHidden:
    case RecurrenceMode::kNone:
      break;
  }
  return false;
}

std::optional<RecurrenceWalk::Candidate> RecurrenceWalk::Next() {
  const bool counted = request_.end_kind == EndKind::kEndDateAfter;
  if (AtEnd()) {
    if (counted) progress_ = progress_maximum_;
    return std::nullopt;
  }
  const text::Date date = text::AddDays(request_.beginning, offset_);
  if (!IsInCalendar(date)) return std::nullopt;

  const Candidate candidate{date, Applies(date)};
  last_tried_ = date;
  if (candidate.applies) {
    ++used_;
    offset_ += strides_.skip_after_use;
    target_year_ += strides_.years_apart;
  }
  if (const int reached = counted ? used_ : offset_; reached <= progress_maximum_) {
    progress_ = reached;
  }
  offset_ += strides_.step;
  return candidate;
}

}  // namespace tarnwell::planner
