#include "forms/draft.h"

#include <charconv>

namespace tarnwell::forms {

void Draft::Add(text::Date date) {
  Add(text::YearOf(date) * 10000 + static_cast<int>(text::MonthOf(date) * 100 + text::DayOf(date)));
}

int DraftTexts::NextNumber() {
  const std::string text = Next();
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

std::optional<text::Date> DraftTexts::NextDate() {
  const int number = NextNumber();
  const auto part = [](int two_digits) { return static_cast<unsigned>(two_digits % 100); };
  if (number <= 0) return std::nullopt;
  const text::Date date = text::MakeDate(number / 10000, part(number / 100), part(number));
  return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace tarnwell::forms
