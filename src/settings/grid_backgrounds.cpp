#include "settings/grid_backgrounds.h"

#include "settings/files.h"

namespace tarnwell::settings {
namespace {

using storage::file_names::kGColor1;

constexpr RecordPlace kDisplayGridsOrModem{kGColor1, 25};

RecordPlace PlaceOf(GridBackground function) {
  switch (function) {
    case GridBackground::kBudget:
      return {kGColor1, 14};
    case GridBackground::kDisplayGrids:
      return kDisplayGridsOrModem;
    case GridBackground::kWorkArea:
      return {kGColor1, 42};
    case GridBackground::kPlanner:
      break;
  }
  return {};
}

bool IsPort(const StoredColor& stored) {
  const auto number = stored.color();
  return number && *number >= kFirstPort && *number <= kLastPort;
}

}  // namespace

StoredColor ReadGridBackground(storage::ProgramFolder& folder, GridBackground function) {
  if (HoldsForTheRun(function)) return {};
  const auto stored = StoredColor::FromText(ReadText(folder, PlaceOf(function)));
  if (function == GridBackground::kDisplayGrids && IsPort(stored)) return {};
  return stored;
}

void WriteGridBackground(storage::ProgramFolder& folder, GridBackground function,
                         const StoredColor& background) {
  if (function == GridBackground::kPlanner) return;
  WriteText(folder, PlaceOf(function), background.Text());
}

int ReadModemPort(storage::ProgramFolder& folder) {
  const auto stored = StoredColor::FromText(ReadText(folder, kDisplayGridsOrModem));
  return IsPort(stored) ? *stored.color() : kFirstPort;
}

void WriteModemPort(storage::ProgramFolder& folder, int port) {
  WriteText(folder, kDisplayGridsOrModem, std::to_string(port));
}

}  // namespace tarnwell::settings
