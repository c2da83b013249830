#include "year_sheet/years.h"

#include <algorithm>

#include "text/leading_number.h"

namespace tarnwell::year_sheet {

std::vector<std::string> Listed(const Years& years) {
  std::vector<std::string> listed;
  for (int year = years.first; year <= years.last; ++year) listed.push_back(std::to_string(year));
  return listed;
}

int TypedYear(std::string_view text, const Years& years) {
  const double first = years.first_typed;
  const double last = years.last;
  return static_cast<int>(std::clamp(text::LeadingNumber(text), first, last));
}

int OpeningYear(text::Date today, const Years& years) {
  const int digits = text::YearOf(today) % 100;
  return digits > years.last_of_2000 ? 1900 + digits : 2000 + digits;
}

}  // namespace tarnwell::year_sheet
