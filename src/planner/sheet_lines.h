// What becomes of a day's ten lines on the calendar sheet: entries are placed among them, and they
// are put in the order of their times.

#pragma once

#include <string_view>

#include "planner/day_sort.h"
#include "planner/month_sheet.h"

namespace tarnwell::planner {

// The line without the blanks at its ends, and without a copy: a month has thousands of them.
std::string_view Trimmed(std::string_view line);

enum class Placed {
  kFound,   // a line is the entry, or ends with it
  kPlaced,  // in the place of a line with which the entry ends, or in the first blank line
  kNoRoom,
};

// `fitted` is what is written of the entry: all of it, or what fits the box. An ending begins at a
// word: "9:00 AM Dentist" ends with "Dentist", but not with "tist".
Placed PlaceEntry(DayLines& lines, std::string_view entry, std::string_view fitted);

// Blank lines behind all others, these by the keys of the planner's rows. A time is taken from a
// line whose second or third character is ":". The lines themselves stay as they are.
void SortLines(DayLines& lines, SortTimeOption option);

}  // namespace tarnwell::planner
