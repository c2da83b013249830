#include "vehicles/vehicle_slots.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "storage/sequential_file.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::vehicles {
namespace {

using storage::Fault;
using storage::Outcome;
using storage::ProgramFolder;
using storage::RecordFile;
namespace file_names = storage::file_names;

constexpr std::size_t kSlotDigits = 6;  // at the end of a record
constexpr std::string_view kEmpty = "EMPTY";

std::string FreeRecord() {
  return std::string(kEmpty).append(kLongestVehicleName - kEmpty.size(), ' ');
}

bool IsFree(std::string_view record) {
  const std::string trimmed = text::Trim(record);
  return trimmed.empty() || text::EqualIgnoringCase(text::Left(trimmed, kEmpty.size()), kEmpty);
}

Vehicle VehicleOf(int number, std::string_view record) {
  const std::string trimmed = text::Trim(record);
  const double slot = text::LeadingNumber(text::Right(trimmed, kSlotDigits));
  return {number, slot < 1 ? 0 : static_cast<int>(slot),
          text::TrimRight(text::Left(trimmed, kLongestVehicleName))};
}

std::vector<std::string> FilesOf(int slot) {
  return {file_names::VehicleSheet(slot), file_names::VehicleFuel(slot),
          file_names::VehicleMaintenance(slot), file_names::VehicleRepairs(slot)};
}

// Of a file that holds something or isn't ours: kNotPlain. Any other fault is the disk's.
Outcome IsBlank(ProgramFolder& folder, std::string_view name) {
  storage::SequentialReader file(folder, name);
  if (file.is_unreadable()) {
    const bool is_kept = file.fault() == Fault::kNotPermitted || file.fault() == Fault::kTooLarge;
    return is_kept ? Fault::kNotPlain : file.fault();
  }
  while (!file.AtEnd()) {
    if (!text::Trim(file.Next()).empty()) return Fault::kNotPlain;
  }
  return {};
}

Outcome CanBeGiven(ProgramFolder& folder, int slot, const std::vector<Vehicle>& vehicles) {
  const auto has = [&](int Vehicle::*number) {
    return std::ranges::find(vehicles, slot, number) != vehicles.end();
  };
  if (has(&Vehicle::record) || has(&Vehicle::slot)) return Fault::kNotPlain;
  for (const std::string& name : FilesOf(slot)) {
    if (const Outcome blank = IsBlank(folder, name); !blank) return blank;
  }
  return {};
}

Outcome PutRecord(ProgramFolder& folder, int record, std::string_view text) {
  RecordFile table(folder, file_names::kVehicleSlots, kSlotRecordLength);
  return table.Finish(table.PutText(record, text));
}

Outcome Empty(ProgramFolder& folder, std::string_view name, std::string_view blanks) {
  storage::SequentialWriter file;
  file.WriteText(blanks);
  return file.Save(folder, name);
}

}  // namespace

bool CanBeVehicleName(std::string_view name) { return !IsFree(name); }

VehicleTable ReadVehicles(ProgramFolder& folder) {
  RecordFile table(folder, file_names::kVehicleSlots, kSlotRecordLength);
  VehicleTable read;
  int records = 0;
  table.Scan(1, [&](int record, std::string_view) {
    records = record;
    return record < kMostSlots;
  });
  for (int record = 1; record <= records; ++record) {
    const std::string text = table.GetText(record);
    if (!IsFree(text)) read.vehicles.push_back(VehicleOf(record, text));
  }
  if (table.has_failed()) read.fault = table.fault();
  return read;
}

TakenSlot TakeSlot(ProgramFolder& folder, std::string_view name) {
  const VehicleTable table = ReadVehicles(folder);
  if (table.fault != Fault::kNone) return {0, table.fault};
  int slot = 1;
  for (Outcome free; !(free = CanBeGiven(folder, slot, table.vehicles));) {
    if (free.fault() != Fault::kNotPlain) return {0, free};
    if (++slot > kMostSlots) return {0, Fault::kFull};
  }
  std::string record(text::Left(text::Trim(name), kLongestVehicleName));
  record.resize(kLongestVehicleName, ' ');
  // What stands in the files of the first slot is blanks; a deletion leaves two of them.
  for (const std::string& file : {file_names::VehicleSheet(1), file_names::VehicleMaintenance(1),
                                  file_names::VehicleRepairs(1)}) {
    if (slot != 1) break;
    if (const Outcome emptied = Empty(folder, file, " "); !emptied) return {0, emptied};
  }
  const Outcome put = PutRecord(folder, slot, record + std::to_string(slot));
  return {put ? slot : 0, put};
}

Outcome DeleteVehicle(ProgramFolder& folder, const Vehicle& vehicle) {
  const VehicleTable table = ReadVehicles(folder);
  if (table.fault != Fault::kNone) return table.fault;
  // The record first: what is no longer listed can be emptied later, but a vehicle that is listed
  // without its files would be lost.
  if (const Outcome freed = PutRecord(folder, vehicle.record, FreeRecord()); !freed) return freed;
  if (vehicle.slot == 0 || std::ranges::count(table.vehicles, vehicle.slot, &Vehicle::slot) > 1) {
    return {};
  }
  for (const std::string& name : FilesOf(vehicle.slot)) {
    const Outcome emptied = Empty(folder, name, vehicle.slot == 1 ? "  " : " ");
    if (!emptied) return emptied;
  }
  return {};
}

}  // namespace tarnwell::vehicles
