// What is kept of one vehicle: its information and the schedule of its maintenance.
// docs/formats/vehicle-sheet.md has the layout.

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"
#include "vehicles/date_turning.h"

namespace tarnwell::vehicles {

// The information fields, by their index.
enum Field : std::size_t {
  kYear = 1,
  kMake = 2,
  kModel = 3,
  kOdometer = 4,
  kVin = 5,
  kRegistrationMonth = 7,
  kFirstGeneral = 5,
  kFirstInsurance = 11,
  kFirstMaintenance = 15,
  kLastField = 22,
};
// Their captions; the first stands for the name of the vehicle's file.
extern const std::array<std::string_view, kLastField + 1> kFieldCaptions;

inline constexpr std::size_t kScheduleRows = 50;

// A row of the schedule, as its cells are shown.
struct ScheduleRow {
  std::string action;
  std::string distance;  // between two actions
  std::string months;    // likewise
  std::string odometer;  // at the last action
  DateRead date;         // of the last action
  std::string cost;      // likewise

  friend bool operator==(const ScheduleRow&, const ScheduleRow&) = default;
};

struct VehicleSheet {
  std::array<std::string, kLastField + 1> fields;  // the first isn't used
  std::array<ScheduleRow, kScheduleRows> rows;
  std::string picture;            // its path; empty for none
  std::vector<std::string> rest;  // of a file that holds more
  bool dates_turn = false;        // in the vehicle's other files too
  bool is_older = false;          // read from the older layout: to be saved in the present one
  storage::Fault fault = storage::Fault::kNone;  // why the file that is there can't be read
};

VehicleSheet ReadSheet(storage::ProgramFolder& folder, int slot, std::string_view date_style);

// Where the file is of the older layout, a copy of it stays beside, as "ACar1.Fil.old".
storage::Outcome WriteSheet(storage::ProgramFolder& folder, int slot, const VehicleSheet& sheet,
                            std::string_view date_style);

}  // namespace tarnwell::vehicles
