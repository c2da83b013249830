// The company's To Do list on disk. docs/formats/todoactv.md has the layout.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::workarea {

inline constexpr int kToDoRows = 500;
inline constexpr std::size_t kLongestToDoItem = 45;  // characters that can be typed

struct ToDoRow {
  std::string item;
  std::string to_do;
  std::string actual;
  std::string review;

  friend bool operator==(const ToDoRow&, const ToDoRow&) = default;
};

bool IsBlank(const ToDoRow& row);

// At least kToDoRows rows, the blank ones at the end of a short file too; a longer file gives all
// of its own. A missing file gives an empty list. One that can't be read gives none, with the
// reason in `fault`: nothing may be written over it.
struct ToDoList {
  std::vector<ToDoRow> rows;
  storage::Fault fault = storage::Fault::kNone;
};
ToDoList ReadToDoList(storage::ProgramFolder& folder);

// The list as its readers find it, the planner and the calendar among them.
storage::Outcome WriteToDoList(storage::ProgramFolder& folder, const std::vector<ToDoRow>& rows);
// The file of the work area's general save, which nobody reads back.
storage::Outcome WriteGeneralSave(storage::ProgramFolder& folder, const std::vector<ToDoRow>& rows);

// The filled rows as text for the clipboard: headings first, tabs between cells, CR LF behind each
// row. Empty where no row holds anything.
std::string ToDoText(const std::vector<ToDoRow>& rows);

// The titles of the four columns of a row.
inline constexpr std::string_view kToDoTitles[] = {"To Do Item", "To Do Date", "Actual Date",
                                                   "Next Review Date"};

}  // namespace tarnwell::workarea
