#include "vehicles/date_turning.h"

#include <cstddef>

#include "text/leading_number.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kYearDigits = 4;
constexpr const char* kMonthFirst = "USA";
constexpr const char* kDayFirst = "OTHER";

bool CouldBeMonth(std::string_view part) {
  const double value = text::LeadingNumber(part);
  return value > 0 && value <= 12;
}

}  // namespace

bool DatesTurn(std::string_view tag, std::string_view date_style) {
  const std::string style = text::Trim(tag) == kDayFirst ? kDayFirst : kMonthFirst;
  return style != text::Trim(date_style);
}

std::string TurnedDate(std::string_view date) {
  const std::size_t first = date.find('/');
  const std::size_t second = first == std::string_view::npos ? first : date.find('/', first + 1);
  const std::string_view year = text::Right(date, kYearDigits);
  if (second == std::string_view::npos || date.size() != second + 1 + kYearDigits ||
      year.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::string(date);
  }
  const std::string_view a = date.substr(0, first);
  const std::string_view b = date.substr(first + 1, second - first - 1);
  if (!CouldBeMonth(a) || !CouldBeMonth(b)) return std::string(date);
  return std::string(b).append("/").append(a).append("/").append(year);
}

DateRead ReadStoredDate(std::string_view stored, bool dates_turn) {
  const std::string date = text::Trim(stored);
  if (date.empty()) return {};
  const std::string turned = dates_turn ? TurnedDate(date) : date;
  if (turned == date) return {ShortDate(date), {}};
  DateRead read{ShortDate(turned), ShortDate(date)};
  if (read.in_file == read.shown) read.in_file.clear();
  return read;
}

std::string TurnNote(const DateRead& date) {
  return date.in_file.empty() ? std::string()
                              : "read as " + date.shown + ", in the file " + date.in_file;
}

}  // namespace tarnwell::vehicles
