// What the calendar sheet takes over from the planner and from the To Do list.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "planner/day_rows.h"
#include "planner/day_sort.h"
#include "planner/month_sheet.h"
#include "planner/todo_import.h"

namespace tarnwell::planner {

struct Imported {
  bool found = false;    // an entry was placed, or stood there already
  bool changed = false;  // one was placed

  void Add(const Imported& other) {
    found |= other.found;
    changed |= other.changed;
  }
};

struct PlannerImport {
  bool with_times = true;  // "9:00 AM Dentist" instead of "Dentist"
  SortTimeOption sort = SortTimeOption::kFirst;
  std::function<std::string(const std::string&)> fit = {};  // what fits a box; without it all does
};

// The rows of a planner's day. A day that got an entry is sorted.
Imported ImportRows(DayLines& lines, const DayRows& rows, const PlannerImport& how);

// The items of that month, each on its day.
Imported ImportItems(MonthSheet& sheet, text::Date month, const std::vector<ToDoItem>& items);

}  // namespace tarnwell::planner
