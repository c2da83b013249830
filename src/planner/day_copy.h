#pragma once

#include "planner/day_rows.h"

namespace tarnwell::planner {

// A row with neither a time nor a text; blanks alone are none.
bool IsBlank(const DayRow& row);
bool HasRows(const DayRows& rows);

// Walks the rows with a place in the copied day that starts at its first row: a blank row takes
// what stands there and the place moves on, blank copied rows too; a row in use is left alone. What
// finds no room is dropped. True when anything was pasted.
bool PasteDay(DayRows& rows, const DayRows& copied);

}  // namespace tarnwell::planner
