#include "text/leading_number.h"

#include <charconv>
#include <cstddef>
#include <string>
#include <system_error>

namespace tarnwell::text {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string WithoutGaps(std::string_view text) {
  std::string packed;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') packed += c;
  }
  return packed;
}

std::size_t SkipDigits(std::string_view text, std::size_t from) {
  while (from < text.size() && IsDigit(text[from])) ++from;
  return from;
}

// Where the digits and the point end that begin at 0.
std::size_t MantissaEnd(std::string_view text) {
  const std::size_t end = SkipDigits(text, 0);
  return end < text.size() && text[end] == '.' ? SkipDigits(text, end + 1) : end;
}

// Turns the exponent that begins at `from` into the standard form and gives its end; without digits
// it is no exponent.
std::size_t ExponentEnd(std::string& text, std::size_t from) {
  if (from >= text.size() || std::string_view("EeDd").find(text[from]) == std::string_view::npos) {
    return from;
  }
  const bool sign = from + 1 < text.size() && (text[from + 1] == '+' || text[from + 1] == '-');
  const std::size_t digits = from + (sign ? 2 : 1);
  const std::size_t end = SkipDigits(text, digits);
  if (end == digits) return from;
  text[from] = 'e';
  return end;
}

}  // namespace

double LeadingNumber(std::string_view text) {
  std::string packed = WithoutGaps(text);
  const bool negative = packed.starts_with('-');
  if (negative || packed.starts_with('+')) packed.erase(0, 1);
  const std::size_t end = ExponentEnd(packed, MantissaEnd(packed));
  double number = 0;
  const auto [stop, error] = std::from_chars(packed.data(), packed.data() + end, number);
  if (error != std::errc{} || number == 0) return 0;
  return negative ? -number : number;
}

}  // namespace tarnwell::text
