// The planner's days on disk. docs/formats/planner-year-file.md has the layout.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "planner/day_rows.h"
#include "storage/fault.h"
#include "storage/program_folder.h"
#include "text/date.h"

namespace tarnwell::planner {

struct PlannerDay {
  bool saved = false;  // the day was saved at least once, be it without any text
  DayRows rows;        // without blanks on the right; all blank unless saved
};

// 11 to 431. The numbers aren't in the order of the dates, but no two dates share one.
int DayRecordNumber(unsigned month, unsigned day);

// A blank, the year, ".Cal": the blank belongs to the name.
std::string PlannerYearFileName(int year);

// Makes the year's file if there is none. Empty when the file can't be read; `fault` is then why.
std::optional<PlannerDay> ReadDay(storage::ProgramFolder& folder, text::Date date,
                                  storage::Fault* fault = nullptr);

// Likewise all days of a month, from the 1st, in one opening of the file; 29 for any February.
// Empty when one of them can't be read.
std::optional<std::vector<PlannerDay>> ReadMonth(storage::ProgramFolder& folder, int year,
                                                 unsigned month, storage::Fault* fault = nullptr);

// Stores the rows as they stand, cut to 10 and 50 characters, and marks the day as saved. When that
// doesn't work, the day is as it was.
storage::Outcome WriteDay(storage::ProgramFolder& folder, text::Date date, const DayRows& rows);

}  // namespace tarnwell::planner
