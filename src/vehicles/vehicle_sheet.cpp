#include "vehicles/vehicle_sheet.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

namespace file_names = storage::file_names;

constexpr const char* kPresentLayout = "NEWW";
constexpr std::size_t kCellsOfRow = 5;  // without the action
constexpr std::size_t kOlderRows = 9;
constexpr std::size_t kOlderCells = 9;  // of a row; the fifth to the eighth mean nothing
constexpr std::size_t kOlderCost = 8;
constexpr std::size_t kTagPlace = 323;  // in the present layout, counted from 0

using Values = std::vector<std::string>;

// Empty behind the file's end.
std::string ValueAt(const Values& values, std::size_t place) {
  return place < values.size() ? values[place] : std::string();
}

// By "Currency"; what begins with no amount stays as it is.
std::string StoredCost(const std::string& cost) {
  const double amount = NumberIn(cost);
  return amount == 0 ? cost : CostText(amount);
}

ScheduleRow RowAt(const Values& values, std::size_t place, std::size_t cost, bool dates_turn) {
  return {.action = {},
          .distance = ValueAt(values, place),
          .months = ValueAt(values, place + 1),
          .odometer = ValueAt(values, place + 2),
          .date = ReadStoredDate(ValueAt(values, place + 3), dates_turn),
          .cost = StoredCost(ValueAt(values, place + cost))};
}

void ReadPresent(const Values& values, std::string_view date_style, VehicleSheet& sheet) {
  sheet.dates_turn = DatesTurn(ValueAt(values, kTagPlace), date_style);
  const std::size_t cells = 1 + kLastField;
  const std::size_t actions = cells + kScheduleRows * kCellsOfRow;
  for (std::size_t row = 0; row < kScheduleRows; ++row) {
    sheet.rows[row] = RowAt(values, cells + row * kCellsOfRow, kCellsOfRow - 1, sheet.dates_turn);
    sheet.rows[row].action = ValueAt(values, actions + row);
  }
  sheet.picture = ValueAt(values, kTagPlace + 1);
  for (std::size_t i = kTagPlace + 2; i < values.size(); ++i) sheet.rest.push_back(values[i]);
}

void ReadOlder(const Values& values, std::string_view date_style, VehicleSheet& sheet) {
  const std::size_t tag = kLastField + kOlderRows * kOlderCells;
  sheet.is_older = true;
  sheet.dates_turn = DatesTurn(ValueAt(values, tag), date_style);
  for (std::size_t row = 0; row < kOlderRows; ++row) {
    sheet.rows[row] = RowAt(values, kLastField + row * kOlderCells, kOlderCost, sheet.dates_turn);
  }
  sheet.picture = ValueAt(values, tag + 1);
}

}  // namespace

const std::array<std::string_view, kLastField + 1> kFieldCaptions = {"Select Auto File Name:",
                                                                     "Year:",
                                                                     "Make:",
                                                                     "Model:",
                                                                     "Current Odometer Reading:",
                                                                     "VIN:",
                                                                     "License No.:",
                                                                     "Registration Month:",
                                                                     "Purchase Date:",
                                                                     "Price:",
                                                                     "From:",
                                                                     "Insurance Company:",
                                                                     "Telephone No.:",
                                                                     "Policy Number:",
                                                                     "Expiration Date:",
                                                                     "Oil Filter:",
                                                                     "Air Filter:",
                                                                     "PVC Valve:",
                                                                     "Plug Type:",
                                                                     "Oil Weight:",
                                                                     "Oil Change (Qts):",
                                                                     "Coolant Change Qts:",
                                                                     "Other:"};

VehicleSheet ReadSheet(storage::ProgramFolder& folder, int slot, std::string_view date_style) {
  storage::SequentialReader file(folder, file_names::VehicleSheet(slot));
  VehicleSheet sheet;
  if (file.is_unreadable()) sheet.fault = file.fault();
  Values values;
  while (!file.AtEnd()) values.push_back(file.Next());
  const bool is_present = ValueAt(values, 0) == kPresentLayout;
  const std::size_t first = is_present ? 1 : 0;
  for (std::size_t i = 1; i <= kLastField; ++i) {
    sheet.fields[i] = ValueAt(values, first + i - 1);
  }
  const bool is_blank =
      std::ranges::all_of(values, [](const auto& value) { return text::Trim(value).empty(); });
  if (is_present || is_blank) {
    ReadPresent(values, date_style, sheet);
  } else {
    ReadOlder(values, date_style, sheet);
  }
  return sheet;
}

storage::Outcome WriteSheet(storage::ProgramFolder& folder, int slot, const VehicleSheet& sheet,
                            std::string_view date_style) {
  const std::string name = file_names::VehicleSheet(slot);
  const std::string kept = file_names::Replaced(name);
  if (sheet.is_older && !folder.Open(kept, storage::OpenMode::kRead)) {
    if (folder.fault() != storage::Fault::kMissing) return folder.fault();
    if (const storage::Outcome copied = folder.Copy(name, kept); !copied) return copied;
  }
  storage::SequentialWriter file;
  file.WriteText(kPresentLayout);
  for (std::size_t i = 1; i <= kLastField; ++i) file.WriteText(sheet.fields[i]);
  for (const ScheduleRow& row : sheet.rows) {
    for (const std::string& cell :
         {row.distance, row.months, row.odometer, row.date.shown, row.cost}) {
      file.WriteText(cell);
    }
  }
  for (const ScheduleRow& row : sheet.rows) file.WriteText(row.action);
  file.WriteText(date_style);
  file.WriteText(sheet.picture);
  for (const std::string& value : sheet.rest) file.WriteText(value);
  return file.Save(folder, name);
}

}  // namespace tarnwell::vehicles
