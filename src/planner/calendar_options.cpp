#include "planner/calendar_options.h"

#include "storage/file_names.h"
#include "storage/record_file.h"

namespace tarnwell::planner {
namespace {

constexpr int kRecordLength = 20;

struct Field {
  int record;
  int CalendarOptions::*value;
  int most;
};
constexpr Field kFields[] = {
    {14, &CalendarOptions::months, 1},
    {15, &CalendarOptions::hide_week_numbers, 1},
    {16, &CalendarOptions::first_weekday, 7},
    {17, &CalendarOptions::mark_today, 1},
};

}  // namespace

CalendarOptions ReadCalendarOptions(storage::ProgramFolder& folder) {
  storage::RecordFile file(folder, storage::file_names::kCalendarOptions, kRecordLength);
  CalendarOptions options;
  for (const Field& field : kFields) {
    const int value = file.GetInteger(field.record);
    options.*field.value = value >= 0 && value <= field.most ? value : 0;
  }
  return options;
}

storage::Outcome WriteCalendarOptions(storage::ProgramFolder& folder,
                                      const CalendarOptions& options) {
  storage::RecordFile file(folder, storage::file_names::kCalendarOptions, kRecordLength);
  bool all_put = true;
  for (const Field& field : kFields) {
    all_put &= file.PutInteger(field.record, static_cast<std::int16_t>(options.*field.value));
  }
  return file.Finish(all_put);
}

forms::DatePickerLook LookOf(const CalendarOptions& options) {
  return {.months = options.months + 1,
          .week_numbers = options.hide_week_numbers == 0,
          .first_weekday =
              options.first_weekday == 0 ? 0u : static_cast<unsigned>(options.first_weekday - 1),
          .mark_today = options.mark_today == 1};
}

}  // namespace tarnwell::planner
