#include "leave/leave_year.h"

#include <algorithm>
#include <cstddef>

#include "storage/sequential_file.h"
#include "text/leading_number.h"
#include "year_sheet/year_copy.h"

namespace tarnwell::leave {
namespace {

constexpr int kCells = kBalance;  // of a row
constexpr int kHeadings = 1;      // a count of rows has the heading in it

// The number of rows that the file's text tells.
int CountIn(storage::SequentialReader& file) {
  const double counted = text::LeadingNumber(file.Next()) - kHeadings;
  return static_cast<int>(std::clamp(counted, double{kLeastRows}, double{kMostRows}));
}

}  // namespace

LeaveYear ReadLeaveYear(storage::ProgramFolder& folder, const LeaveFiles& files, int year) {
  storage::SequentialReader count(folder, files.row_count(year));
  storage::SequentialReader sheet(folder, files.sheet(year));
  LeaveYear read{year_sheet::ReadRows(sheet, CountIn(count), kCells)};
  if (count.is_unreadable()) read.fault = count.fault();
  if (sheet.is_unreadable()) read.fault = sheet.fault();
  if (read.fault != storage::Fault::kNone) read.rows.assign(kLeastRows, year_sheet::Row(kCells));
  return read;
}

storage::Outcome WriteRowCount(storage::ProgramFolder& folder, const LeaveFiles& files, int year,
                               int rows) {
  storage::SequentialWriter file;
  file.WriteText(std::to_string(rows + kHeadings));
  return file.Save(folder, files.row_count(year));
}

storage::Outcome WriteLeaveYear(storage::ProgramFolder& folder, const LeaveFiles& files, int year,
                                const year_sheet::Rows& rows) {
  const int count = static_cast<int>(rows.size());
  storage::SequentialReader before(folder, files.row_count(year));
  const bool grows = count > CountIn(before);
  // The count is never below the rows of the sheet: what lies behind it isn't read, and would go
  // with the next save.
  if (grows) {
    if (const auto written = WriteRowCount(folder, files, year, count); !written) return written;
  }
  storage::SequentialWriter file;
  year_sheet::WriteRows(file, rows);
  if (const auto written = file.Save(folder, files.sheet(year)); !written || grows) return written;
  return WriteRowCount(folder, files, year, count);
}

storage::Outcome WriteNamesOfNextYear(storage::ProgramFolder& folder, const LeaveFiles& files,
                                      int year, const year_sheet::Rows& rows) {
  const std::string next = files.sheet(year + 1);
  if (const auto kept = year_sheet::KeepReplaced(folder, next); !kept) return kept;
  year_sheet::Rows names(rows.size() + 1, year_sheet::Row(kCells));  // a blank row more, as ever
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (const std::size_t column : {kName, kAuthorized}) {
      names[i][column - kName] = rows[i][column - kName];
    }
  }
  storage::SequentialWriter file;
  year_sheet::WriteRows(file, names);
  if (const auto written = file.Save(folder, next); !written) return written;
  return WriteRowCount(folder, files, year, static_cast<int>(rows.size()));
}

}  // namespace tarnwell::leave
