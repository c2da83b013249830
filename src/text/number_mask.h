// Masks that turn numbers and texts into the texts of fields and reports.

#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "text/rounded_decimal.h"

namespace tarnwell::text {

// A number by a mask: "0" a digit or a zero, "#" a digit or nothing, "." the decimal point, ","
// between two digit places groups by thousands, "%" multiplies by 100; any other character,
// leading and trailing blanks among them, stands for itself. Also the named masks "Currency"
// ($1,234.50, negative in parentheses) and "Percent" (two decimals). Rounding is half away from
// zero on the decimal digits of the number. Not a number or infinite gives the empty text.
std::string FormatNumber(double value, std::string_view mask);

// A single-precision number counts with its own digits: 0.1f is 0.1, not 0.10000000149.
template <std::same_as<float> Single>
std::string FormatNumber(Single value, std::string_view mask) {
  return FormatNumber(WidenByDigits(value), mask);
}

// A text by a mask of "@" places and literal blanks. With "!" the places fill from the left: the
// text is padded on the right to their count and cut behind it. Without "!" it is padded on the
// left and a longer text is kept whole.
std::string FormatText(std::string_view text, std::string_view mask);

}  // namespace tarnwell::text
