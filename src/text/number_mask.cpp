#include "text/number_mask.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "text/letters.h"
#include "text/rounded_decimal.h"

namespace tarnwell::text {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsPlace(char c) { return c == '0' || c == '#'; }

std::size_t CountPlaces(std::string_view part) {
  return static_cast<std::size_t>(std::count_if(part.begin(), part.end(), IsPlace));
}

// A mask cut at its point.
struct MaskParts {
  std::string_view integer;
  bool has_point;
  std::string_view fraction;
};

MaskParts Split(std::string_view mask) {
  const std::size_t point = mask.find('.');
  if (point == kNone) return {mask, false, {}};
  return {mask.substr(0, point), true, mask.substr(point + 1)};
}

// Fills the places from the right. The leftmost place takes all digits that are left over; without
// a place they stand right in front of the point.
std::string FillInteger(const MaskParts& mask, std::string digits) {
  const std::string_view part = mask.integer;
  const std::size_t first = part.find_first_of("0#");
  const std::size_t last = part.find_last_of("0#");
  const auto groups = [&](std::size_t i) { return part[i] == ',' && first < i && i < last; };
  bool grouped = false;
  for (std::size_t i = 0; i < part.size(); ++i) grouped = grouped || groups(i);

  const std::size_t zero = part.find('0');
  const std::size_t required = zero == kNone ? 0 : CountPlaces(part.substr(zero));
  if (digits.size() < required) digits.insert(0, required - digits.size(), '0');

  std::string reversed;
  std::size_t written = 0;
  const auto write_digit = [&] {
    if (grouped && written > 0 && written % 3 == 0) reversed += ',';
    reversed += digits[digits.size() - ++written];
  };
  const auto write_rest = [&] {
    while (written < digits.size()) write_digit();
  };
  if (first == kNone && mask.has_point) write_rest();
  for (std::size_t i = part.size(); i-- > 0;) {
    if (i == first) {
      write_rest();
    } else if (IsPlace(part[i])) {
      if (written < digits.size()) write_digit();
    } else if (!groups(i)) {
      reversed += part[i];
    }
  }
  return {reversed.rbegin(), reversed.rend()};
}

// Fills the places from the left; zeros at the end show only where a "0" place asks for them.
std::string FillFraction(std::string_view part, std::string_view digits) {
  const std::size_t zero = part.rfind('0');
  const std::size_t required = zero == kNone ? 0 : CountPlaces(part.substr(0, zero + 1));
  const std::size_t shown = std::max(required, digits.find_last_not_of('0') + 1);
  std::string filled;
  std::size_t place = 0;
  for (const char c : part) {
    if (!IsPlace(c)) {
      filled += c;
    } else if (place++ < shown) {
      filled += digits[place - 1];
    }
  }
  return filled;
}

}  // namespace

std::string FormatNumber(double value, std::string_view mask) {
  if (!std::isfinite(value)) return {};
  if (EqualIgnoringCase(mask, "Percent")) mask = "0.00%";
  const bool currency = EqualIgnoringCase(mask, "Currency");
  if (currency) mask = "$#,##0.00";

  const MaskParts parts = Split(mask);
  const auto percents = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '%'));
  const RoundedDecimal number = RoundDecimal(value, 2 * percents, CountPlaces(parts.fraction));
  std::string text = FillInteger(parts, number.integer);
  if (parts.has_point) text += '.' + FillFraction(parts.fraction, number.fraction);

  const bool shows_digits = parts.has_point || CountPlaces(mask) > 0;
  if (value >= 0 || number.IsZero() || !shows_digits) return text;
  return currency ? '(' + text + ')' : '-' + text;
}

std::string FormatText(std::string_view text, std::string_view mask) {
  const bool from_left = mask.find('!') != kNone;
  const auto places = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '@'));
  std::string padded(text);
  if (from_left) {
    padded.resize(places, ' ');
  } else if (padded.size() < places) {
    padded.insert(0, places - padded.size(), ' ');
  }
  // What is longer than the places stands whole in the first of them.
  std::size_t next = 0;
  std::size_t surplus = padded.size() - places;
  std::string filled;
  for (const char c : mask) {
    if (c == '@') {
      filled.append(padded, next, surplus + 1);
      next += surplus + 1;
      surplus = 0;
    } else if (c != '!') {
      filled += c;
    }
  }
  return filled;
}

}  // namespace tarnwell::text
