#include "planner/day_store.h"

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "storage/structure.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr int kDayLength = 900;
constexpr std::size_t kStoredBytes = 850;
constexpr std::size_t kTimeWidth = 10;
constexpr std::size_t kEntryWidth = 50;
constexpr std::size_t kMarkerWidth = 10;
constexpr const char* kMarker = "Full";

storage::RecordFile OpenYear(storage::ProgramFolder& folder, text::Date date) {
  return storage::RecordFile(folder, PlannerYearFileName(text::YearOf(date)), kDayLength);
}

int RecordOf(text::Date date) { return DayRecordNumber(text::MonthOf(date), text::DayOf(date)); }

PlannerDay Unpack(std::string_view bytes) {
  storage::StructureReader fields(bytes);
  PlannerDay day;
  for (DayRow& row : day.rows) row.time = text::TrimRight(fields.FixedText(kTimeWidth));
  for (DayRow& row : day.rows) row.entry = text::TrimRight(fields.FixedText(kEntryWidth));
  day.saved = text::TrimRight(fields.FixedText(kMarkerWidth)) == kMarker;
  if (!day.saved) day.rows = {};
  return day;
}

bool IsUnreadable(const storage::RecordFile& file, storage::Fault* fault) {
  if (file.is_open() && !file.has_failed()) return false;
  if (fault) *fault = file.fault();
  return true;
}

std::string Pack(const DayRows& rows) {
  storage::StructureWriter fields(kStoredBytes);
  for (const DayRow& row : rows) fields.FixedText(row.time, kTimeWidth);
  for (const DayRow& row : rows) fields.FixedText(row.entry, kEntryWidth);
  fields.FixedText(kMarker, kMarkerWidth);
  return fields.bytes();
}

}  // namespace

int DayRecordNumber(unsigned month, unsigned day) {
  const int number = static_cast<int>(day);
  switch (month) {
    case 10:
      return 320 + number;
    case 11:
      return 360 + number;
    case 12:
      return 400 + number;
    default:
      return 10 * number + static_cast<int>(month);
  }
}

std::string PlannerYearFileName(int year) { return storage::file_names::PlannerYear(year); }

std::optional<PlannerDay> ReadDay(storage::ProgramFolder& folder, text::Date date,
                                  storage::Fault* fault) {
  auto file = OpenYear(folder, date);
  const std::string bytes = file.GetStructure(RecordOf(date), kStoredBytes);
  if (IsUnreadable(file, fault)) return std::nullopt;
  return Unpack(bytes);
}

std::optional<std::vector<PlannerDay>> ReadMonth(storage::ProgramFolder& folder, int year,
                                                 unsigned month, storage::Fault* fault) {
  constexpr int kLeapYear = 2024;
  const auto last = text::DayOf(text::AddDays(
      text::MakeDate(month == 12 ? kLeapYear + 1 : kLeapYear, month % 12 + 1, 1), -1));
  auto file = OpenYear(folder, text::MakeDate(year, month, 1));
  std::vector<PlannerDay> days;
  days.reserve(last);
  for (unsigned day = 1; day <= last; ++day) {
    days.push_back(Unpack(file.GetStructure(DayRecordNumber(month, day), kStoredBytes)));
    if (IsUnreadable(file, fault)) return std::nullopt;
  }
  return days;
}

storage::Outcome WriteDay(storage::ProgramFolder& folder, text::Date date, const DayRows& rows) {
  auto file = OpenYear(folder, date);
  return file.Finish(file.PutStructure(RecordOf(date), Pack(rows)));
}

}  // namespace tarnwell::planner
