// What a recurrence over ten years costs on top of the system calls that it can't do without, and
// how long it keeps the user waiting between two looks at the stop box.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "forms/form_names.h"
#include "idle_world.h"
#include "planner/day_store.h"
#include "planner/zcalandar1.h"
#include "ratio_table.h"

namespace tarnwell::bench {
namespace {

using Instant = std::chrono::steady_clock::time_point;

constexpr int kDays = 3653;
constexpr double kLongestGap = 50;  // milliseconds
const text::Date kToday = text::MakeDate(2026, 3, 9);
const text::Date kFirstDay = text::AddDays(kToday, 1);

class Clock : public forms::Clock {
  text::Moment Now() override { return {kToday, std::chrono::hours(9)}; }
};

class GapMeter : public forms::EventLoop {
 public:
  void Yield() override {
    const Instant now = std::chrono::steady_clock::now();
    if (last_ != Instant{}) {
      longest_ = std::max(longest_, std::chrono::duration<double, std::milli>(now - last_).count());
    }
    last_ = now;
    ++yields_;
  }
  void WaitALittle() override {}
  void RunUntil(const std::function<bool()>&) override {}

  void BeginRun() {
    last_ = {};
    yields_ = 0;
  }
  int yields() const { return yields_; }
  double longest() const { return longest_; }  // milliseconds, over all runs

 private:
  Instant last_{};
  double longest_ = 0;
  int yields_ = 0;
};

// The planner as a person uses it: the panel opened for the first row of today.
class Planner {
 public:
  explicit Planner(storage::ProgramFolder& folder) : world_(folder) {
    planner::DayRows rows;
    rows[0] = {"9:00 AM", "Stand-up meeting with the whole crew"};
    Check(planner::WriteDay(folder, kToday, rows), "write today");
    world_.navigator.Register(forms::form_names::kZcalandar1, [](forms::Context& context) {
      return std::make_unique<planner::Zcalandar1>(context);
    });
    world_.navigator.Show(forms::form_names::kZcalandar1);
  }

  // Each day of ten years from tomorrow on.
  void Add() {
    planner::RecurrencePanel& panel = Open();
    panel.choice.modes.Pick(0);
    Run(panel.ok);
  }
  void Remove() { Run(Open().remove); }
  double longest_gap() const { return world_.loop.longest(); }

 private:
  planner::RecurrencePanel& Open() {
    auto& form = dynamic_cast<planner::Zcalandar1&>(*world_.navigator.top());
    form.recurrence_buttons[0].Click();
    planner::RecurrenceChoice& choice = form.recurrence.choice;
    choice.calendar.SelectDay(kFirstDay);
    choice.date_to_change.Pick(1);
    choice.calendar.SelectDay(text::AddDays(kFirstDay, kDays - 1));
    return form.recurrence;
  }
  void Run(forms::Command& command) {
    world_.loop.BeginRun();
    command.Click();
    Check(world_.loop.yields() == kDays, "walk every day");
  }

  IdleWorld<Clock, GapMeter> world_;
};

// The same records in the same order, in files of the same size.
class BareDays {
 public:
  explicit BareDays(const std::string& folder) {
    for (int i = 0; i < kDays; ++i) {
      const text::Date date = text::AddDays(kFirstDay, i);
      const int record = planner::DayRecordNumber(text::MonthOf(date), text::DayOf(date));
      places_.push_back({folder + "/" + planner::PlannerYearFileName(text::YearOf(date)),
                         (record - 1) * off_t{900}});
    }
    for (const Place& place : places_) Write(place);
  }

  void Read() {
    for (const Place& place : places_) Read(place);
  }
  void ReadAndWrite() {
    for (const Place& place : places_) {
      Read(place);
      Write(place);
    }
  }

 private:
  struct Place {
    std::string path;
    off_t offset;
  };

  static int Open(const Place& place) {
    return ::open(place.path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  }
  void Read(const Place& place) {
    const int file = Open(place);
    Check(IsWhole(::pread(file, day_.data(), day_.size(), place.offset), day_.size()), "pread");
    ::close(file);
  }
  void Write(const Place& place) {
    const int file = Open(place);
    Check(IsWhole(::pwrite(file, day_.data(), day_.size(), place.offset), day_.size()), "pwrite");
    ::close(file);
  }

  std::vector<Place> places_;
  std::string day_ = std::string(850, ' ');
};

// Each day has three rows of its own.
void FillDays(storage::ProgramFolder& folder) {
  planner::DayRows rows;
  rows[0] = {"8:00 AM", "Open the shop"};
  rows[1] = {"12:30 PM", "Lunch with the suppliers from the harbour"};
  rows[2] = {"5:00 PM", "Count the till"};
  for (int i = 0; i < kDays; ++i) {
    Check(planner::WriteDay(folder, text::AddDays(kFirstDay, i), rows), "fill a day");
  }
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  const BenchFolder bare_disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  FillDays(folder);
  Planner planner(folder);
  BareDays bare(bare_disk.path());
  RatioTable table;
  bool entered = false;
  table.Measure(
      "Daily recurrence over ten years: 3,653 days changed", 1.5, 21,
      [&] {
        entered ? planner.Remove() : planner.Add();
        entered = !entered;
      },
      [&] { bare.ReadAndWrite(); });
  if (!entered) planner.Add();
  table.Measure(
      "The same where every day has the entry already", 1.5, 21, [&] { planner.Add(); },
      [&] { bare.Read(); });
  const bool is_met = table.Print();
  const double gap = planner.longest_gap();
  std::printf("Longest gap between two yields: %.2f ms, aim %.0f ms%s\n", gap, kLongestGap,
              Verdict(gap, kLongestGap));
  return is_met && Stands(gap, kLongestGap) ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::Run(count > 1 ? arguments[1] : ".");
}
