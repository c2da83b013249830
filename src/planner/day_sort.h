// The order of a day's rows. A time is free text, so rows are put in order by a text key.

#pragma once

#include <string>

#include "planner/day_rows.h"

namespace tarnwell::planner {

// Where the rows without a time go.
enum class SortTimeOption { kFirst = 0, kLast = 1 };

// A prefix for the part of the day, the time, "zzz" and the appointment. Needs trimmed texts.
std::string TimeSortKey(const DayRow& row, SortTimeOption option);

// The rows in the order in which a day is saved: blank rows behind all others, the times and
// appointments cut back out of the sorted keys. Three things follow from that cut, and saved days
// rely on them: with kFirst a row without a time stands last and with kLast first; with kFirst a
// time below 10 without AM or PM loses its first two characters; and "zzz" inside a time moves the
// remainder of the time in front of the appointment.
DayRows SortDay(const DayRows& rows, SortTimeOption option);

}  // namespace tarnwell::planner
