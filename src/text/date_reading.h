// Texts back as dates, month first whatever the machine's locale.

#pragma once

#include <optional>
#include <string_view>

#include "text/date.h"

namespace tarnwell::text {

// Reads a date as any mask of this program writes it: "3/9/2026", "2026/03/09", "03-09-26",
// "March 9, 2026", "Mar-09-26", "9 March 2026", a weekday in front or behind. Two-digit years 00 to
// 29 are 2000 to 2029, 30 to 99 are 1930 to 1999; a date without a year is none. Where the first of
// two numbers can only be a day (13 to 31) they are read day first. A weekday isn't checked against
// the date. A point may stand behind a month's name ("Mar. 9, 2026"), and a clock time behind the
// date, which is left out. Empty when it is no date of the years 100 to 9999.
std::optional<Date> ReadDate(std::string_view text);

// The same for what a person types today: a date without a year ("3/9", "Mar 9") is one of
// `today`'s year.
std::optional<Date> ReadDate(std::string_view text, Date today);

// `date` was read from a text with a year of two digits. Where the text begins with a weekday
// that only the same day a hundred years later has, that one is meant: "Sun - Jan 5, 31" was
// written in this century.
Date InCenturyOfWeekday(Date date, std::string_view text);

}  // namespace tarnwell::text
