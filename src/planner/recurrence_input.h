// What the Recurrence Option panel lets a person enter.

#pragma once

#include <string>
#include <string_view>

#include "planner/recurrence.h"
#include "text/date.h"

namespace tarnwell::planner {

enum class NumberBox { kDays, kWeeks, kDayOfMonth, kMonths, kDay, kYears, kOccurrences };

// What a number box holds after it was changed to `text`, which is at most 2 characters long.
// Digits stay, "," and "/" too, and a "+" in front; an empty box becomes "1" and a number over the
// box's limit becomes the limit.
std::string AcceptNumber(NumberBox box, std::string_view text);

// The number that a box stands for, 0 if it holds no digit.
int NumberIn(std::string_view text);

// The rule that typing in a box selects; kNone for the occurrences, which select "End Date after:".
RecurrenceMode ModeSelectedBy(NumberBox box);

// The largest number of occurrences, up to the requested one, that keeps the selected rule within
// ten years. A smaller number than the requested one is to be told to the user.
int OccurrencesWithinTenYears(const RecurrenceRequest& request);

// The last date that an End Date may be. The user is told when it is picked, too, so an End Date at
// or behind it is exceeded and replaced by it.
text::Date LatestEndDate(text::Date today);

// A Beginning Date that is 31 or more days before today is ignored.
bool IsTooLongAgo(text::Date beginning, text::Date today);

text::Date DefaultEndDate(text::Date beginning);

}  // namespace tarnwell::planner
