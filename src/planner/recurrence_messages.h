// What a recurrence tells the user.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "planner/recurrence.h"
#include "planner/recurrence_step.h"
#include "text/date.h"

namespace tarnwell::planner {

struct RecurrenceMessage {
  std::string title;
  std::string text;
};

// The report of a run that added; nothing if there is nothing to say.
std::optional<RecurrenceMessage> RunReport(const RecurrenceCounts& counts);

// Days that a run left as they were; `reason` is the end of a sentence.
RecurrenceMessage FailureReport(int failed_days, std::string_view reason);

// A run that the user stopped behind the candidate `last_tried`.
RecurrenceMessage Interruption(EndKind end_kind, text::Date last_tried);

RecurrenceMessage NoOptionSelected();
RecurrenceMessage TenYearsExceeded();
RecurrenceMessage RemovalQuestion();

}  // namespace tarnwell::planner
