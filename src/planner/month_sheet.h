// The calendar sheet of a month: ten lines of free text a day. docs/formats/calendar-sheet.md has
// the layout of its file.

#pragma once

#include <array>
#include <string>

#include "forms/page.h"
#include "storage/fault.h"
#include "storage/program_folder.h"
#include "text/date.h"

namespace tarnwell::planner {

inline constexpr int kLinesPerDay = 10;
inline constexpr int kDaysOfSheet = 31;  // in a shorter month the last ones stay blank

using DayLines = std::array<std::string, kLinesPerDay>;

struct MonthSheet {
  std::array<DayLines, kDaysOfSheet> days;
  forms::Font font;  // of the lines

  DayLines& DayOf(text::Date date) { return days.at(text::DayOf(date) - 1); }
  const DayLines& DayOf(text::Date date) const { return days.at(text::DayOf(date) - 1); }

  friend bool operator==(const MonthSheet&, const MonthSheet&) = default;
};

// The first day of the date's month, by which sheets are known; and how many days it has.
text::Date MonthOfSheet(text::Date date);
int DaysInMonth(text::Date date);

// A missing file gives blank lines, and a missing or blank setting that of `usual`. A file that
// can't be read does so too, with the reason in `fault`: nothing may be written over it.
struct StoredMonthSheet {
  MonthSheet sheet;
  storage::Fault fault = storage::Fault::kNone;
};
StoredMonthSheet ReadMonthSheet(storage::ProgramFolder& folder, text::Date month,
                                const forms::Font& usual);

storage::Outcome WriteMonthSheet(storage::ProgramFolder& folder, text::Date month,
                                 const MonthSheet& sheet);
// A month without a file is no error.
storage::Outcome DeleteMonthSheet(storage::ProgramFolder& folder, text::Date month);

}  // namespace tarnwell::planner
