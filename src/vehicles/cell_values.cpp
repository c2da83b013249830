#include "vehicles/cell_values.h"

#include <cmath>

#include "text/date_mask.h"
#include "text/date_reading.h"
#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::vehicles {
namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

}  // namespace

double NumberIn(std::string_view cell) {
  const std::string trimmed = text::Trim(cell);
  if (trimmed.find_first_of("$(,") == std::string::npos) return text::LeadingNumber(trimmed);
  std::string number;
  for (std::size_t i = 0; i < trimmed.size(); ++i) {
    const char letter = trimmed[i];
    const bool is_before_digits = number.empty() || number == "-";
    if (is_before_digits && letter == '$') continue;
    if (is_before_digits && letter == '(') {
      number = "-";
      continue;
    }
    const bool groups = letter == ',' && !number.empty() && IsDigit(number.back()) &&
                        i + 1 < trimmed.size() && IsDigit(trimmed[i + 1]);
    if (!groups) number += letter;
  }
  return text::LeadingNumber(number);
}

float SingleIn(std::string_view cell) { return static_cast<float>(NumberIn(cell)); }

std::string WholeText(std::string_view cell) {
  return text::FormatNumber(NumberIn(cell), "#,###,###");
}

float WholeNumber(std::string_view cell) { return static_cast<float>(std::round(NumberIn(cell))); }

std::string CostText(double cost) {
  return text::FormatNumber(static_cast<float>(cost), "Currency");
}

std::string ShortDate(std::string_view cell) {
  const auto date = text::ReadDate(cell);
  return date ? ShortDate(*date) : std::string(cell);
}

std::optional<text::Date> TypedDate(std::string_view typed, text::Date today) {
  return text::ReadDate(text::Trim(typed), today);
}

std::string ShortDate(text::Date date) { return text::FormatDate(date, "Short Date"); }

}  // namespace tarnwell::vehicles
