// Dates and times as text. Names are English and the order is the mask's, whatever the machine's
// locale.

#pragma once

#include <string>
#include <string_view>

#include "text/date.h"

namespace tarnwell::text {

// A moment by a mask: d dd ddd dddd, m mm mmm mmmm, yy yyyy, h hh, n nn, s ss, AM/PM (which makes
// the hour count to 12); any other character stands for itself. Also the named masks "Long Date"
// (dddd, mmmm dd, yyyy) and "Short Date" (m/d/yyyy). A date that doesn't exist, a year outside 100
// to 9999 and a time outside the day give the empty text.
std::string FormatDate(const Moment& moment, std::string_view mask);
std::string FormatDate(Date date, std::string_view mask);

}  // namespace tarnwell::text
