// Dates and times as text and back. Names are English and the order is month, day, year, whatever
// the machine's locale.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/date.h"

namespace tarnwell::text {

// A moment by a mask: d dd ddd dddd, m mm mmm mmmm, yy yyyy, h hh, n nn, s ss, AM/PM (which makes
// the hour count to 12); any other character stands for itself. Also the named masks "Long Date"
// (dddd, mmmm dd, yyyy) and "Short Date" (m/d/yyyy). A date that doesn't exist gives the empty
// text.
std::string FormatDate(const Moment& moment, std::string_view mask);
std::string FormatDate(Date date, std::string_view mask);

// Reads a date as any mask of this program writes it: "3/9/2026", "2026/03/09", "03-09-26",
// "March 9, 2026", "Mar-09-26", "9 March 2026", a weekday in front or behind. Two-digit years 00 to
// 29 are 2000 to 2029, 30 to 99 are 1930 to 1999; a date without a year is none. Where the first of
// two numbers can only be a day (13 to 31) they are read day first. Empty when it is no date.
std::optional<Date> ReadDate(std::string_view text);

}  // namespace tarnwell::text
