// What the tracker's cells and fields hold, as values: they are texts as a person left them, or as
// a mask made them.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/date.h"

namespace tarnwell::vehicles {

// The number that a cell begins with; commas between its digits, a currency sign before it and
// brackets around a negative amount don't end it: 12000 for "12,000 mi". 0 for none.
double NumberIn(std::string_view cell);
// The same in single precision, as the fuel tracker computes.
float SingleIn(std::string_view cell);

// That number without decimals, by "#,###,###": "12,000". Empty for 0.
std::string WholeText(std::string_view cell);
// What WholeText shows, as a number; 0 for none.
float WholeNumber(std::string_view cell);
// In single precision, by "Currency": "$1,234.50".
std::string CostText(double cost);

// "m/d/yyyy" for a text that is a date, else the text as it is.
std::string ShortDate(std::string_view cell);
// For what a person typed on that day, who may leave the year out. Empty where it is no date.
std::optional<text::Date> TypedDate(std::string_view typed, text::Date today);
std::string ShortDate(text::Date date);

}  // namespace tarnwell::vehicles
