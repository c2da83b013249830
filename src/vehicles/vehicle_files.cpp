#include "vehicles/vehicle_files.h"

#include <array>
#include <utility>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"
#include "vehicles/fuel_cells.h"
#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {
namespace {

using storage::Outcome;
using storage::ProgramFolder;
using storage::SequentialReader;
using storage::SequentialWriter;

// A file without an entry holds one blank.
constexpr const char* kNothing = " ";

std::string FileOf(HistoryKind kind, int slot) {
  return kind == HistoryKind::kMaintenance ? storage::file_names::VehicleMaintenance(slot)
                                           : storage::file_names::VehicleRepairs(slot);
}

template <std::size_t N>
std::array<std::string, N> NextValues(SequentialReader& file) {
  std::array<std::string, N> values;
  for (std::string& value : values) value = text::Trim(file.Next());
  return values;
}

// True when there is no room for an entry that the file still holds.
template <typename Entry>
bool IsFull(EntryList<Entry>& list, std::size_t most) {
  if (list.entries.size() < most) return false;
  list.is_cut = true;
  return true;
}

// As it is shown; what begins with no number stays as it is.
std::string Reading(const std::string& stored) {
  return NumberIn(stored) == 0 ? stored : WholeText(stored);
}
std::string Cost(const std::string& stored) {
  return NumberIn(stored) == 0 ? stored : CostText(NumberIn(stored));
}

Outcome Save(ProgramFolder& folder, const std::string& name, SequentialWriter& file) {
  if (file.content().empty()) file.WriteText(kNothing);
  return file.Save(folder, name);
}

}  // namespace

bool FuelEntry::IsBlank() const {
  return date.shown.empty() && text::Trim(previous).empty() && text::Trim(current).empty();
}

History ReadHistory(ProgramFolder& folder, HistoryKind kind, int slot, bool dates_turn) {
  SequentialReader file(folder, FileOf(kind, slot));
  History history;
  if (file.is_unreadable()) history.fault = file.fault();
  while (!file.AtEnd()) {
    auto [odometer, date, text, cost] = NextValues<4>(file);
    if (odometer.empty() && date.empty() && text.empty() && cost.empty()) continue;
    if (IsFull(history, kMostHistory)) break;
    history.entries.push_back(
        {Reading(odometer), ReadStoredDate(date, dates_turn), std::move(text), Cost(cost)});
  }
  SortHistory(history.entries);
  return history;
}

Outcome WriteHistory(ProgramFolder& folder, HistoryKind kind, int slot,
                     const std::vector<HistoryEntry>& entries) {
  SequentialWriter file;
  for (const HistoryEntry& entry : entries) {
    for (const std::string& value : {entry.odometer, entry.date.shown, entry.text, entry.cost}) {
      file.WriteText(text::Trim(value));
    }
  }
  return Save(folder, FileOf(kind, slot), file);
}

FuelLog ReadFuel(ProgramFolder& folder, int slot, bool dates_turn) {
  SequentialReader file(folder, storage::file_names::VehicleFuel(slot));
  FuelLog log;
  if (file.is_unreadable()) log.fault = file.fault();
  while (!file.AtEnd()) {
    const auto [date, previous, current, driven, fuel, rate, cost] = NextValues<7>(file);
    if (IsFull(log, kMostFuel)) break;
    log.entries.push_back({ReadStoredDate(date, dates_turn), FuelText(kPrevious, previous),
                           FuelText(kCurrent, current), FuelText(kDriven, driven),
                           FuelText(kFuel, fuel), FuelText(kRate, rate), FuelText(kCost, cost)});
  }
  return log;
}

Outcome WriteFuel(ProgramFolder& folder, int slot, const std::vector<FuelEntry>& entries) {
  SequentialWriter file;
  for (const FuelEntry& entry : entries) {
    if (entry.IsBlank()) continue;
    for (const std::string& value : {entry.date.shown, entry.previous, entry.current, entry.driven,
                                     entry.fuel, entry.rate, entry.cost}) {
      file.WriteText(text::Trim(value));
    }
  }
  return Save(folder, storage::file_names::VehicleFuel(slot), file);
}

}  // namespace tarnwell::vehicles
