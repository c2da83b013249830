#include "text/rounded_decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace tarnwell::text {
namespace {

// The number 0.DIGITS x 10^point.
struct DecimalDigits {
  std::string digits;
  std::int64_t point;
};

DecimalDigits ShortestDigits(double magnitude) {
  char buffer[32];
  const auto written =
      std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific);
  const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
  const std::size_t e = text.find('e');
  std::string digits(text.substr(0, 1));
  if (e > 2) digits += text.substr(2, e - 2);
  int exponent = 0;
  const bool negative = text[e + 1] == '-';
  std::from_chars(text.data() + e + 2, text.data() + text.size(), exponent);
  return {std::move(digits), (negative ? -exponent : exponent) + 1};
}

// Adds one to the last digit; true if that made the number one digit longer.
bool CarryUp(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return false;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
  return true;
}

void RoundTo(DecimalDigits& number, std::size_t places) {
  const std::int64_t wanted = number.point + static_cast<std::int64_t>(places);
  if (wanted < 0) {
    number = {"", -static_cast<std::int64_t>(places)};
    return;
  }
  const auto keep = static_cast<std::size_t>(wanted);
  const bool up = keep < number.digits.size() && number.digits[keep] >= '5';
  number.digits.resize(keep, '0');
  if (up && CarryUp(number.digits)) ++number.point;
}

}  // namespace

bool RoundedDecimal::IsZero() const {
  return integer.empty() && fraction.find_first_not_of('0') == std::string::npos;
}

RoundedDecimal RoundDecimal(double value, std::size_t shift, std::size_t places) {
  if (value == 0) return {"", std::string(places, '0')};
  DecimalDigits number = ShortestDigits(std::abs(value));
  number.point += static_cast<std::int64_t>(shift);
  RoundTo(number, places);
  if (number.point <= 0) {
    return {"", std::string(static_cast<std::size_t>(-number.point), '0') + number.digits};
  }
  const auto split = static_cast<std::size_t>(number.point);
  return {number.digits.substr(0, split), number.digits.substr(split)};
}

double WidenByDigits(float value) {
  char buffer[32];
  const auto written = std::to_chars(buffer, buffer + sizeof buffer, value);
  double wide = value;
  std::from_chars(buffer, written.ptr, wide);
  return wide;
}

}  // namespace tarnwell::text
