#include "workarea/todo_dates.h"

#include "text/date_mask.h"
#include "text/date_reading.h"
#include "text/letters.h"

namespace tarnwell::workarea {

std::string ToDoDateText(text::Date date) { return text::FormatDate(date, "ddd - mmm d, yy"); }

std::optional<text::Date> ReadToDoDate(std::string_view cell) {
  const std::size_t dash = cell.find('-');
  if (dash == cell.npos) return std::nullopt;
  const auto date = text::ReadDate(cell.substr(dash + 1));
  return date ? std::optional(text::InCenturyOfWeekday(*date, cell)) : std::nullopt;
}

std::string ToDoDateKey(const std::string& cell) {
  if (text::Trim(cell).empty()) return {};
  auto date = ReadToDoDate(cell);
  if (!date) date = text::ReadDate(cell);  // "3/9/2026", typed
  return date ? text::FormatDate(*date, "yyyymmdd") : "~" + cell;
}

}  // namespace tarnwell::workarea
