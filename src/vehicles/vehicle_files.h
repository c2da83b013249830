// A vehicle's histories and its fuel. docs/formats/vehicle-history.md and
// docs/formats/vehicle-fuel.md have the layouts.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"
#include "vehicles/date_turning.h"

namespace tarnwell::vehicles {

inline constexpr std::size_t kMostHistory = 6000;  // entries of each history
inline constexpr std::size_t kMostFuel = 3000;     // rows

// An action done, or something paid, as its cells are shown.
struct HistoryEntry {
  std::string odometer;
  DateRead date;
  std::string text;
  std::string cost;

  friend bool operator==(const HistoryEntry&, const HistoryEntry&) = default;
};

struct FuelEntry {
  DateRead date;
  std::string previous;
  std::string current;
  std::string driven;
  std::string fuel;
  std::string rate;
  std::string cost;

  // Without a date and both readings: such a row isn't kept.
  bool IsBlank() const;
  friend bool operator==(const FuelEntry&, const FuelEntry&) = default;
};

// The entries of a file, as many as the program keeps.
template <typename Entry>
struct EntryList {
  std::vector<Entry> entries;
  bool is_cut = false;                           // the file holds more: it is never written
  storage::Fault fault = storage::Fault::kNone;  // why the file that is there can't be read
};
using History = EntryList<HistoryEntry>;
using FuelLog = EntryList<FuelEntry>;

enum class HistoryKind { kMaintenance, kRepairs };

// By their odometers, the lowest first; entries at the same one keep their order.
History ReadHistory(storage::ProgramFolder& folder, HistoryKind kind, int slot, bool dates_turn);
storage::Outcome WriteHistory(storage::ProgramFolder& folder, HistoryKind kind, int slot,
                              const std::vector<HistoryEntry>& entries);

// A blank row of the file is one here.
FuelLog ReadFuel(storage::ProgramFolder& folder, int slot, bool dates_turn);
// Without its blank rows.
storage::Outcome WriteFuel(storage::ProgramFolder& folder, int slot,
                           const std::vector<FuelEntry>& entries);

}  // namespace tarnwell::vehicles
