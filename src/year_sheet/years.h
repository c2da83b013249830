// The years of which a sheet is kept.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/date.h"

namespace tarnwell::year_sheet {

struct Years {
  int first = 0;          // in the list
  int last = 0;           // in the list, and the last that can be typed
  int first_typed = 0;    // the first that can be typed
  int last_of_2000 = 99;  // two digits above it belong to the years before 2000
};

// The list to choose from, ascending.
std::vector<std::string> Listed(const Years& years);
// The year that a typed text means, by the number that it begins with: the nearest that there is.
int TypedYear(std::string_view text, const Years& years);
// With which the sheet opens: the last two digits of today's year, and a century for them.
int OpeningYear(text::Date today, const Years& years);

}  // namespace tarnwell::year_sheet
