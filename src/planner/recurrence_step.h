// What a recurrence does to one day.

#pragma once

#include <optional>

#include "planner/day_rows.h"
#include "planner/day_sort.h"
#include "text/date.h"

namespace tarnwell::planner {

// The days of the planner as a recurrence sees them.
class DayBook {
 public:
  virtual ~DayBook() = default;

  // The rows of a day, all blank if it was never saved; nothing if it can't be read.
  virtual std::optional<DayRows> ReadDay(text::Date date) = 0;

  // False if the day wasn't written.
  virtual bool WriteDay(text::Date date, const DayRows& rows) = 0;
};

enum class ChangeMode { kIdle = 0, kRemove = 77, kAdd = 88 };

struct RecurrenceCounts {
  int full_days = 0;
  int entries_made = 0;
  int failed_days = 0;  // couldn't be read or written
};

// One run over many days.
struct RecurrenceRun {
  ChangeMode change_mode = ChangeMode::kAdd;
  DayRow appointment;  // both texts trimmed
  SortTimeOption sort_time = SortTimeOption::kFirst;
  RecurrenceCounts counts;
};

// Adds the appointment to the day unless it is there already, or removes its first row that has
// exactly this time and text. A day whose last row has a text counts as full and is left alone in
// both modes. What can't be read or written is counted and passed over.
void ApplyToDay(RecurrenceRun& run, text::Date date, DayBook& book);

}  // namespace tarnwell::planner
