// The dates of the To Do list, which are texts in its cells.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/date.h"

namespace tarnwell::workarea {

// "Mon - Mar 9, 26", as a day of the month calendar is written into a cell.
std::string ToDoDateText(text::Date date);

// The date of a cell: what stands behind its first "-". Empty where that is no date.
std::optional<text::Date> ReadToDoDate(std::string_view cell);

// By which dates are put in order: "20260309". Texts that are no date come behind all dates.
std::string ToDoDateKey(const std::string& cell);

}  // namespace tarnwell::workarea
