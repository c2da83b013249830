// The vehicles: one schedule computed anew, the search through 500 vehicles for what is due against
// the bare reads of their files, and whether long histories and a long fuel tracker are shown and
// edited without a wait. Runs where QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "ratio_table.h"
#include "vehicles/automaint.h"
#include "vehicles/due.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

using vehicles::MaintenancePane;

constexpr int kVehicles = 500;
constexpr int kGestures = 100;
constexpr int kOpenings = 11;
constexpr double kLongestSchedule = 0.2;   // milliseconds
constexpr double kLongestHistories = 100;  // likewise
constexpr double kLongestFrame = 16;       // likewise

// Nothing of it is due before its last row.
vehicles::VehicleSheet FullSheet() {
  vehicles::VehicleSheet sheet;
  sheet.fields[vehicles::kOdometer] = "123,456";
  for (std::size_t i = 0; i < vehicles::kScheduleRows; ++i) {
    sheet.rows[i] = {.action = "Action " + std::to_string(i),
                     .distance = "30,000",
                     .months = "1200",
                     .odometer = "120,000",
                     .date = {"3/13/2020", {}},
                     .cost = "$25.00"};
  }
  sheet.rows.back().distance = "1";
  return sheet;
}

std::vector<vehicles::HistoryEntry> LongHistory() {
  std::vector<vehicles::HistoryEntry> entries;
  for (int i = 0; i < static_cast<int>(vehicles::kMostHistory); ++i) {
    entries.push_back({std::to_string(1000 + i * 7919 % 100'000),
                       {"3/" + std::to_string(1 + i % 28) + "/2020", {}},
                       "Action number " + std::to_string(i),
                       "$25.00"});
  }
  return entries;
}

std::vector<vehicles::FuelEntry> LongFuel() {
  return std::vector<vehicles::FuelEntry>(
      vehicles::kMostFuel, {{"3/13/2020", {}}, "12,000", "12,300", "300", "15", "20", "$45.00"});
}

std::function<void(int)> Painted(const std::function<void(int)>& gesture) {
  return [gesture](int i) {
    gesture(i);
    QApplication::processEvents();
  };
}

void WriteVehicles(storage::ProgramFolder& folder) {
  const vehicles::VehicleSheet sheet = FullSheet();
  for (int slot = 1; slot <= kVehicles; ++slot) {
    Check(vehicles::WriteSheet(folder, slot, sheet, ""), "write a vehicle");
  }
  for (const auto kind : {vehicles::HistoryKind::kMaintenance, vehicles::HistoryKind::kRepairs}) {
    Check(vehicles::WriteHistory(folder, kind, 1, LongHistory()), "write a history");
  }
  Check(vehicles::WriteFuel(folder, 1, LongFuel()), "write the fuel");
}

bool MeasureSearch(storage::ProgramFolder& folder) {
  std::string content(1u << 16, ' ');
  RatioTable table;
  table.Measure(
      "Look for what is due in 500 vehicles", 2, 11,
      [&] {
        int due = 0;
        for (int slot = 1; slot <= kVehicles; ++slot) {
          const vehicles::VehicleSheet sheet = vehicles::ReadSheet(folder, slot, "");
          due += vehicles::AnyIsNear(sheet.rows, 123'456, text::MakeDate(2026, 3, 9), {});
        }
        Check(due == kVehicles, "find all");
      },
      [&] {
        for (int slot = 1; slot <= kVehicles; ++slot) {
          const std::string path = folder.path() + "/ACar" + std::to_string(slot) + ".Fil";
          const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
          Check(::read(file, content.data(), content.size()) > 0, "read");
          ::close(file);
        }
      });
  return table.Print();
}

bool MeasureForm(vehicles::AutoMaint& form) {
  bool is_good =
      Tell("A schedule of 50 rows computed",
           MedianOf(kGestures, [&](int) { form.maintenance.Recompute(); }), kLongestSchedule);
  form.view_history.Click();
  QApplication::processEvents();
  is_good &= Tell("A vehicle with 2 x 6,000 histories opened, painted",
                  MedianOf(kOpenings, Painted([&](int) {
                             form.view.Click();
                             form.view_history.Click();
                             form.history.maintenance.Click();
                           })),
                  3 * kLongestHistories);
  is_good &= Tell("6,000 histories sorted and shown, painted",
                  MedianOf(kOpenings, Painted([&](int i) {
                             (i % 2 == 0 ? form.history.repairs : form.history.maintenance).Click();
                           })),
                  kLongestHistories);
  form.view_fuel.Click();
  QApplication::processEvents();
  is_good &= Tell("An edit among 3,000 fill-ups, painted",
                  MedianOf(kGestures, Painted([&](int i) {
                             form.fuel.grid.EditCell(i + 1, vehicles::kCost, std::to_string(i + 1));
                           })),
                  kLongestFrame);
  form.fuel.grid.SelectCell(200, vehicles::kCost);
  is_good &= Tell(
      "A key in a cell among them, painted",
      MedianOf(kGestures, Painted([&](int i) { form.fuel.grid.TypeInCell(std::to_string(i)); })),
      kLongestFrame);
  form.fuel.grid.CancelEdit();
  return is_good;
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  Check(vehicles::TakeSlot(folder, "Van").slot == 1, "take a slot");
  WriteVehicles(folder);
  desktop::Desktop desktop({QString::fromStdString(disk.path()), QString()});
  desktop.navigator().Show(forms::form_names::kAutoMaint);
  auto& form = static_cast<vehicles::AutoMaint&>(*desktop.navigator().top());
  QApplication::processEvents();
  const bool is_good = MeasureForm(form);
  return MeasureSearch(folder) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
