#pragma once

#include "forms/date_picker.h"
#include "storage/program_folder.h"

namespace tarnwell::planner {

// The four display options of the planner's date picker, as docs/formats/calopt.md lays them out. A
// value that the file can't mean reads as 0.
struct CalendarOptions {
  int months = 0;             // 0 one, 1 two
  int hide_week_numbers = 0;  // 0 shown, 1 hidden
  int first_weekday = 0;      // 1 Sunday to 7 Saturday; 0 is Sunday too
  int mark_today = 0;         // 0 no, 1 yes
};

CalendarOptions ReadCalendarOptions(storage::ProgramFolder& folder);
storage::Outcome WriteCalendarOptions(storage::ProgramFolder& folder,
                                      const CalendarOptions& options);

forms::DatePickerLook LookOf(const CalendarOptions& options);

}  // namespace tarnwell::planner
