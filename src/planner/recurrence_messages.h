// What a recurrence tells the user.

#pragma once

#include <optional>
#include <string>

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

// A run that the user stopped behind the candidate `last_tried`.
RecurrenceMessage Interruption(EndKind end_kind, text::Date last_tried);

RecurrenceMessage NoOptionSelected();
RecurrenceMessage TenYearsExceeded();
RecurrenceMessage RemovalQuestion();

}  // namespace tarnwell::planner
