// Items of the company's To Do list as planner entries.

#pragma once

#include <string>
#include <vector>

#include "planner/day_rows.h"
#include "storage/program_folder.h"
#include "storage/sequential_file.h"
#include "text/date.h"

namespace tarnwell::planner {

struct ToDoItem {
  text::Date date;
  std::string entry;
};

// Reads the list in groups of three values: text, date (in the last 10 characters), one that
// is passed over. The file holds five values a row and nothing realigns the groups, so of its rows
// only the 1st, 4th, 7th and so on come out as item and To Do date; groups between them that happen
// to hold a text and a date count as well.
std::vector<ToDoItem> ReadToDoItems(storage::SequentialReader& reader);

// Puts the entry without a time into the first blank row. False when nothing changed: row 14 has a
// text, so the day is full, or a row without a time holds that very text already.
bool PlaceToDoEntry(DayRows& rows, const std::string& entry);

// Places the entry on its day on the disk, sorted as the planner's sort option says. A day that
// needn't change stays as it is, and so does one that can't be read or written.
storage::Outcome ImportToDoItem(storage::ProgramFolder& folder, const ToDoItem& item);

}  // namespace tarnwell::planner
