#include "planner/recurrence_step.h"

#include <algorithm>

#include "text/letters.h"

namespace tarnwell::planner {
namespace {

void Trim(std::string& text) {
  if (text.starts_with(' ') || text.ends_with(' ')) text = text::Trim(text);
}

bool Remove(const DayRow& appointment, DayRows& rows) {
  const auto row = std::find(rows.begin(), rows.end(), appointment);
  if (row == rows.end()) return false;
  *row = {};
  return true;
}

// The first row that is either the appointment itself or blank decides.
bool Add(const DayRow& appointment, DayRows& rows) {
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const DayRow& candidate) {
    return candidate == appointment || candidate == DayRow{};
  });
  if (row == rows.end() || *row == appointment) return false;
  *row = appointment;
  return true;
}

bool Change(const RecurrenceRun& run, DayRows& rows) {
  switch (run.change_mode) {
    case ChangeMode::kAdd:
      return Add(run.appointment, rows);
    case ChangeMode::kRemove:
      return Remove(run.appointment, rows);
    case ChangeMode::kIdle:
      break;
  }
  return false;
}

}  // namespace

void ApplyToDay(RecurrenceRun& run, text::Date date, DayBook& book) {
  if (!date.ok()) return;
  std::optional<DayRows> rows = book.ReadDay(date);
  if (!rows) {
    ++run.counts.failed_days;
    return;
  }
  for (DayRow& row : *rows) {
    Trim(row.time);
    Trim(row.entry);
  }
  if (!rows->back().entry.empty()) {
    ++run.counts.full_days;
    return;
  }
  if (!Change(run, *rows)) return;
  const bool written = book.WriteDay(date, SortDay(*rows, run.sort_time));
  ++(written ? run.counts.entries_made : run.counts.failed_days);
}

}  // namespace tarnwell::planner
