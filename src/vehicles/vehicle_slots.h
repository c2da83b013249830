// The table of vehicles: which slot each has, and so which files. docs/formats/vehicle-slots.md has
// the layout.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::vehicles {

inline constexpr int kSlotRecordLength = 150;  // bytes
inline constexpr int kMostSlots = 30'000;
inline constexpr std::size_t kLongestVehicleName = 100;  // characters

struct Vehicle {
  int record = 0;    // of the table, from 1
  int slot = 0;      // of its files; 0 where the table names none
  std::string name;  // without the blanks at its ends

  friend bool operator==(const Vehicle&, const Vehicle&) = default;
};

struct VehicleTable {
  std::vector<Vehicle> vehicles;                 // in the order of their records
  storage::Fault fault = storage::Fault::kNone;  // why the table that is there can't be read
};

// A record that begins as a free one does would be free.
bool CanBeVehicleName(std::string_view name);

VehicleTable ReadVehicles(storage::ProgramFolder& folder);

// Gives the vehicle the first free slot, and says which; 0 where the disk refuses. A free slot
// whose files hold something, as after a table was damaged, isn't given away.
struct TakenSlot {
  int slot = 0;
  storage::Outcome outcome;
};
TakenSlot TakeSlot(storage::ProgramFolder& folder, std::string_view name);

// Frees the vehicle's record, and empties its files, which stay for the slot's next vehicle, unless
// another record names the same slot.
storage::Outcome DeleteVehicle(storage::ProgramFolder& folder, const Vehicle& vehicle);

}  // namespace tarnwell::vehicles
