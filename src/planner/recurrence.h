// A recurrence copies one row of a day onto other days. Nothing of the rule is stored: it is walked
// once, and what it leaves are plain rows.

#pragma once

#include <optional>

#include "planner/day_rows.h"
#include "text/date.h"

namespace tarnwell::planner {

// The numbers of the option buttons. 4 is a button that is never shown and enters nothing.
enum class RecurrenceMode {
  kDaily = 0,
  kWeekdays = 1,
  kWeekly = 2,
  kMonthly = 3,
  kHidden = 4,
  kYearly = 5,
  kNone = 99
};

enum class EndKind { kEndDateAfter = 0, kEndDate = 1 };

// The Recurrence Option panel as it stands. The numbers are those of its boxes, 0 to 99.
struct RecurrenceRequest {
  DayRow appointment;  // both texts trimmed
  RecurrenceMode mode = RecurrenceMode::kNone;
  int every_days = 1;
  int every_weeks = 1;
  unsigned weekday = 0;  // 0 Sunday to 6 Saturday
  unsigned day_of_month = 1;
  int every_months = 1;
  unsigned month = 1;
  unsigned day = 1;  // of that month, for a yearly rule
  int every_years = 1;
  EndKind end_kind = EndKind::kEndDate;
  int occurrences = 1;
  text::Date beginning{};
  text::Date end{};
};

// The dates that a request leads to, one after the other. The two ways of ending differ in more
// than their end: "End Date after:" counts its days behind the Beginning Date, "End Date:" begins
// with it, and they look for weekdays, months and years in strides of their own.
class RecurrenceWalk {
 public:
  struct Candidate {
    text::Date date;
    bool applies;  // the rule names this date: the day is to be changed
  };

  explicit RecurrenceWalk(const RecurrenceRequest& request);

  // The next date that the walk looks at. Dates that the rule passes over come too, so that the
  // user can stop between any two of them. With "End Date:" and an interval of 0 days the walk
  // never leaves the Beginning Date and never ends by itself.
  std::optional<Candidate> Next();

  // "End Date after:" has given all of its days.
  bool HasCountedAll() const {
    return request_.end_kind == EndKind::kEndDateAfter && used_ >= request_.occurrences;
  }

  // The length of the progress bar; at 0 or below the walk has no candidate.
  int ProgressMaximum() const { return progress_maximum_; }

  // How far the bar is filled once the candidate last given is done.
  int Progress() const { return progress_; }

 private:
  // The candidates as days behind the Beginning Date.
  struct Strides {
    int first = 1;
    int step = 1;
    int last = 0;  // with "End Date after:" only
    int skip_after_use = 0;
    int years_apart = 0;  // from the Beginning Date's year to the first target year, and on
  };

  static Strides CountedStrides(const RecurrenceRequest& request);
  static Strides DatedStrides(const RecurrenceRequest& request);

  bool AtEnd() const;
  bool Applies(text::Date date) const;

  RecurrenceRequest request_;
  Strides strides_;
  int progress_maximum_;
  int progress_ = 0;
  int offset_;
  int target_year_;
  int used_ = 0;
  text::Date last_tried_;
};

}  // namespace tarnwell::planner
