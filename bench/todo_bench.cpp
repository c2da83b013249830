// The To Do list of 500 rows and 1,000 names, and the calendar sheet of a full month: how much
// longer the hub takes to open with them, and whether keys and letters are painted within one frame
// of the screen. The month's import is measured against the bare reads of its days. Runs where
// QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "planner/calendar.h"
#include "planner/day_store.h"
#include "ratio_table.h"
#include "storage/sequential_file.h"
#include "windows.h"
#include "workarea/workarea1.h"

namespace tarnwell::bench {
namespace {

constexpr int kTimes = 15;
constexpr int kGestures = 200;
constexpr double kMostLonger = 30;      // milliseconds
constexpr double kLongestPainted = 16;  // milliseconds, a frame of the screen
constexpr int kRecordLength = 900;
const text::Date kMonth = text::MakeDate(2026, 8, 1);

double Median(std::vector<double> times) {
  std::ranges::sort(times);
  return times[times.size() / 2];
}

void Fill(storage::ProgramFolder& folder) {
  std::vector<workarea::ToDoRow> rows;
  for (int i = 0; i < workarea::kToDoRows; ++i) {
    rows.push_back({"Item number " + std::to_string(i) + " of the long list", "Mon - Mar 9, 26",
                    "Tue - Mar 10, 26", "Wed - Mar 11, 26"});
  }
  Check(workarea::WriteToDoList(folder, rows), "write the list");
  std::vector<std::string> names;
  for (int i = 0; i < 1000; ++i) names.push_back("Reusable name number " + std::to_string(i));
  Check(storage::WriteNameList(folder, "TODONAME.FIL", names), "write the names");
  planner::DayRows day;
  for (std::size_t i = 0; i < day.size(); ++i) {
    day[i] = {"9:" + std::to_string(10 + i) + " AM", "Meeting with the crew " + std::to_string(i)};
  }
  for (int i = 0; i < planner::DaysInMonth(kMonth); ++i) {
    Check(planner::WriteDay(folder, text::AddDays(kMonth, i), day), "write a day");
  }
}

// Until the hub has been painted.
double TimeToOpen(const std::string& path) {
  desktop::Desktop desktop({QString::fromStdString(path), QString()});
  return Milliseconds([&] {
    desktop.navigator().Show(forms::form_names::kWorkArea1);
    QApplication::processEvents();
  });
}

// In turns, so that both meet the same machine.
double TimeLonger(const std::string& path, const std::string& than) {
  std::vector<double> taken;
  for (int i = 0; i < kTimes; ++i) taken.push_back(TimeToOpen(path) - TimeToOpen(than));
  return Median(std::move(taken));
}

bool MeasureGrid(const std::string& path) {
  desktop::Desktop desktop({QString::fromStdString(path), QString()});
  desktop.navigator().Show(forms::form_names::kWorkArea1);
  QApplication::processEvents();
  auto& hub = static_cast<workarea::WorkArea1&>(*desktop.navigator().top());
  forms::Grid& grid = hub.to_do.sheet.grid;
  const double keys = MedianOf(kGestures, [&](int) {
    grid.Step(forms::GridStep::kDown);
    QApplication::processEvents();
  });
  const double edits = MedianOf(kGestures, [&](int i) {
    grid.EditCell(i + 1, workarea::ToDoSheet::kToDo, "Fri - Mar 13, 26");
    QApplication::processEvents();
  });
  const bool keys_are_quick = Tell("An arrow key in the list, painted", keys, kLongestPainted);
  return Tell("An edit in the list, painted", edits, kLongestPainted) && keys_are_quick;
}

bool MeasureSheet(const std::string& path) {
  desktop::Desktop desktop({QString::fromStdString(path), QString()});
  desktop.navigator().Show(forms::form_names::kCalendar);
  auto& form = static_cast<planner::Calendar&>(*desktop.navigator().top());
  form.picker.SelectDay(kMonth);
  QApplication::processEvents();
  return Tell("A letter on the sheet of a full month, painted",
              MedianOf(kGestures,
                       [&](int i) {
                         form.lines[0].Type("Letter " + std::to_string(i));
                         QApplication::processEvents();
                       }),
              kLongestPainted);
}

void ReadBare(const std::string& file) {
  const int opened = ::open(file.c_str(), O_RDONLY);
  std::array<char, kRecordLength> record{};
  for (unsigned day = 1; day <= 31; ++day) {
    const long place = (planner::DayRecordNumber(text::MonthOf(kMonth), day) - 1) * kRecordLength;
    Check(::pread(opened, record.data(), 850, place) == 850, "read a day");
  }
  ::close(opened);
}

bool MeasureImport(storage::ProgramFolder& folder) {
  planner::MonthSheet full;
  RatioTable table;
  table.Measure(
      "Import a month of 31 full days", 2, 200,
      [&] {
        const auto days = planner::ReadMonth(folder, 2026, 8);
        for (std::size_t i = 0; i < days->size(); ++i) {
          planner::ImportRows(full.days[i], (*days)[i].rows, {});
        }
      },
      [file = folder.path() + "/ 2026.Cal"] { ReadBare(file); });
  Check(planner::WriteMonthSheet(folder, kMonth, full), "write the sheet");
  return table.Print();
}

int Run(const std::string& parent) {
  const BenchFolder empty(parent);
  const BenchFolder disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  Fill(folder);
  const double longer = TimeLonger(disk.path(), empty.path());
  bool is_good = Tell("Opening the hub, longer than with an empty list", longer, kMostLonger);
  is_good = MeasureGrid(disk.path()) && is_good;
  is_good = MeasureImport(folder) && is_good;
  return MeasureSheet(disk.path()) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
