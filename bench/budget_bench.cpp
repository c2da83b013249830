// A year's budget of 500 items: read against the bare read of its file, its totals after an edit,
// and whether keys, edits and the panel of totals with its chart are painted without a wait. Runs
// where QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench_folder.h"
#include "budget/budget1a.h"
#include "desktop/desktop.h"
#include "desktop/widgets/look.h"
#include "forms/form_names.h"
#include "ratio_table.h"

namespace tarnwell::bench {
namespace {

constexpr int kGestures = 100;
constexpr int kOpenings = 11;
constexpr double kLongestTotals = 1;   // milliseconds
constexpr double kLongestFrame = 16;   // likewise
constexpr double kLongestPanel = 150;  // likewise

double MedianOf(int times, const std::function<void(int)>& work) {
  std::vector<double> taken;
  for (int i = 0; i < times; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work(i);
    taken.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
            .count());
  }
  std::ranges::sort(taken);
  return taken[taken.size() / 2];
}

bool Tell(const char* title, double taken, double aim) {
  std::printf("%-50s %8.3f ms, aim %.0f%s\n", title, taken, aim, taken <= aim ? "" : "  missed");
  return taken <= aim;
}

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

bool MeasureScreen(budget::Budget1a& form) {
  const auto painted = [](const std::function<void(int)>& gesture) {
    return [gesture](int i) {
      gesture(i);
      QApplication::processEvents();
    };
  };
  bool is_good =
      Tell("An arrow key, painted",
           MedianOf(kGestures, painted([&](int) { form.grid.Step(forms::GridStep::kDown); })),
           kLongestFrame);
  is_good &= Tell("An edit with its totals, painted",
                  MedianOf(kGestures, painted([&](int i) { form.grid.EditCell(i + 1, 2, "7"); })),
                  kLongestFrame);
  is_good &=
      Tell("Copy To Right, painted",
           MedianOf(kGestures, painted([&](int) { form.copy_right.Click(); })), kLongestFrame);
  is_good &= Tell("The totals with a chart of 500 items, painted",
                  MedianOf(kOpenings, painted([&](int) {
                             form.year_totals.close.Click();
                             form.totals.Click();
                           })),
                  kLongestPanel);
  const std::pair<int, const char*> kinds[] = {
      {2, "Then a stack, painted"}, {1, "Then a pie, painted"}, {0, "Then bars again, painted"}};
  for (const auto& [kind, title] : kinds) {
    const auto pick = [&, which = kind](int) { form.year_totals.kind.Pick(which); };
    is_good &= Tell(title, MedianOf(1, painted(pick)), kLongestPanel);
  }
  return is_good;
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
  return MeasureScreen(form) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(count, arguments);
  tarnwell::desktop::ApplyLook(application);
  return tarnwell::bench::Run(count > 1 ? arguments[1] : ".");
}
