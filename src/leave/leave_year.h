// A year of a leave tracker on the disk. docs/formats/leave-year.md has the layout.

#pragma once

#include <string>

#include "storage/fault.h"
#include "storage/program_folder.h"
#include "year_sheet/rows.h"

namespace tarnwell::leave {

// The columns of a sheet; the months lie between the name and Used.
enum Column : int {
  kName = 1,
  kJanuary = 2,
  kDecember = 13,
  kUsed = 14,
  kAuthorized = 15,
  kBalance = 16
};

inline constexpr int kLeastRows = 50;   // of employees
inline constexpr int kMostRows = 9001;  // likewise

// The two files of a year.
struct LeaveFiles {
  std::string (*sheet)(int year);
  std::string (*row_count)(int year);
};

// Fifty rows or as many as were counted, with blank cells where the sheet's file ends early or is
// missing. Where one of the two can't be read, all are blank and `fault` says why: nothing may be
// written over it.
struct LeaveYear {
  year_sheet::Rows rows;
  storage::Fault fault = storage::Fault::kNone;
};
LeaveYear ReadLeaveYear(storage::ProgramFolder& folder, const LeaveFiles& files, int year);

// The sheet and the count of its rows, in the order in which the count is never too low.
storage::Outcome WriteLeaveYear(storage::ProgramFolder& folder, const LeaveFiles& files, int year,
                                const year_sheet::Rows& rows);
// The count alone, which the sheet's file doesn't follow before it is saved.
storage::Outcome WriteRowCount(storage::ProgramFolder& folder, const LeaveFiles& files, int year,
                               int rows);

// Begins the next year with the names and the days authorised, and counts the rows of this year
// once more. The next year's rows are not counted: it opens with fifty. What its file held before
// is kept (year_sheet/year_copy.h).
storage::Outcome WriteNamesOfNextYear(storage::ProgramFolder& folder, const LeaveFiles& files,
                                      int year, const year_sheet::Rows& rows);

}  // namespace tarnwell::leave
