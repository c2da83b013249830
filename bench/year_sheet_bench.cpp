// A year's budget of 500 items: read against the bare read of its file, its totals after an edit,
// and whether keys, edits and the panel of totals with its chart are painted without a wait; and a
// leave tracker of 9,000 rows. Runs where QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench_folder.h"
#include "budget/budget1a.h"
#include "budget/budget_year.h"
#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "leave/leave_sheet.h"
#include "ratio_table.h"
#include "storage/sequential_file.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kGestures = 100;
constexpr int kOpenings = 11;
constexpr double kLongestTotals = 1;   // milliseconds
constexpr double kLongestFrame = 16;   // likewise
constexpr double kLongestPanel = 150;  // likewise

budget::BudgetYear FullYear() {
  budget::BudgetYear year;
  for (int i = 1; i <= budget::kItems; ++i) {
    year_sheet::Row row(budget::kColumns, std::to_string(100 + i % 90) + ".25");
    row[0] = "Item number " + std::to_string(i);
    year.rows.push_back(std::move(row));
  }
  year.income.fill("99999.99");
  return year;
}

bool MeasureReading(storage::ProgramFolder& folder, int year) {
  const std::string path = folder.path() + "/" + std::to_string(year) + ".Fil";
  std::string content(1u << 20, ' ');
  RatioTable table;
  table.Measure(
      "Read a year of 6,512 values", 1.5, 41, [&] { budget::ReadBudgetYear(folder, year); },
      [&] {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        Check(::read(file, content.data(), content.size()) > 0, "read");
        ::close(file);
      });
  return table.Print();
}

bool MeasureTotals(const budget::BudgetYear& year) {
  return Tell("Totals of 500 x 12 cells",
              MedianOf(kGestures, [&](int) { budget::ComputeMonths(year.rows, year.income); }),
              kLongestTotals);
}

std::function<void(int)> Painted(const std::function<void(int)>& gesture) {
  return [gesture](int i) {
    gesture(i);
    QApplication::processEvents();
  };
}

bool MeasureGestures(year_sheet::YearSheet& form) {
  std::printf("%s, %d rows\n", form.name().c_str(), form.grid.rows() - 1);
  const auto step = [&](int) { form.grid.Step(forms::GridStep::kDown); };
  const auto edit = [&](int i) { form.grid.EditCell(i + 1, 2, std::to_string(i + 7)); };
  const auto copy = [&](int i) {
    form.grid.EditCell(i + 1, 2, std::to_string(i + 50));  // else there is nothing new to copy
    form.copy_right.Click();
  };
  bool is_good = Tell("An arrow key, painted", MedianOf(kGestures, Painted(step)), kLongestFrame);
  is_good &=
      Tell("An edit with its sums, painted", MedianOf(kGestures, Painted(edit)), kLongestFrame);
  is_good &= Tell("An edit copied to the right, painted", MedianOf(kGestures, Painted(copy)),
                  kLongestFrame);
  return is_good;
}

bool MeasureChart(budget::Budget1a& form) {
  bool is_good = Tell("The totals with a chart of 500 items, painted",
                      MedianOf(kOpenings, Painted([&](int) {
                                 form.year_totals.close.Click();
                                 form.totals.Click();
                               })),
                      kLongestPanel);
  const std::pair<int, const char*> kinds[] = {
      {2, "Then a stack, painted"}, {1, "Then a pie, painted"}, {0, "Then bars again, painted"}};
  for (const auto& [kind, title] : kinds) {
    const auto pick = [&, which = kind](int) { form.year_totals.kind.Pick(which); };
    is_good &= Tell(title, MedianOf(1, Painted(pick)), kLongestPanel);
  }
  return is_good;
}

bool MeasureLeave(forms::Navigator& navigator, storage::ProgramFolder& folder) {
  navigator.Show(forms::form_names::kVacation1);
  auto& form = static_cast<leave::LeaveSheet&>(*navigator.top());
  const std::string year = std::to_string(std::stoi(form.years.text()) + 1);
  storage::SequentialWriter count;
  count.WriteText("9001");
  storage::SequentialWriter sheet;
  for (int row = 1; row <= 9000; ++row) {
    sheet.WriteText("Employee " + std::to_string(row));
    for (int cell = 0; cell < 15; ++cell) sheet.WriteText("1.00");
  }
  Check(count.Save(folder, year + ".Vl2") && sheet.Save(folder, year + ".Vl1"), "write a year");
  form.years.Type(year);
  form.years.PressEnter();
  QApplication::processEvents();
  return MeasureGestures(form);
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  const budget::BudgetYear year = FullYear();
  desktop::Desktop desktop({QString::fromStdString(disk.path()), QString()});
  desktop.navigator().Show(forms::form_names::kBudget1a);
  auto& form = static_cast<budget::Budget1a&>(*desktop.navigator().top());
  const int other = std::stoi(form.years.text()) + 1;
  Check(budget::WriteBudgetYear(folder, other, year), "write the year");
  form.years.Type(std::to_string(other));
  form.years.PressEnter();
  QApplication::processEvents();
  bool is_good = MeasureReading(folder, other);
  is_good &= MeasureTotals(year);
  is_good &= MeasureGestures(form) && MeasureChart(form);
  return MeasureLeave(desktop.navigator(), folder) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
