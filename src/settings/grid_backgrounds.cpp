#include "settings/grid_backgrounds.h"

#include "settings/files.h"

namespace tarnwell::settings {
namespace {

using storage::file_names::kGColor1;
using storage::file_names::kGColor3;

RecordPlace PlaceOf(GridBackground function) {
  switch (function) {
    case GridBackground::kBudget:
      return {kGColor1, 14};
    case GridBackground::kDisplayGrids:
      return {kGColor3, 25};
    case GridBackground::kWorkArea:
      return {kGColor1, 42};
    case GridBackground::kPlanner:
    case GridBackground::kLeave:
      break;
  }
  return {};
}

}  // namespace

StoredColor ReadGridBackground(storage::ProgramFolder& folder, GridBackground function) {
  if (HoldsForTheRun(function)) return {};
  return StoredColor::FromText(ReadText(folder, PlaceOf(function)));
}

storage::Outcome WriteGridBackground(storage::ProgramFolder& folder, GridBackground function,
                                     const StoredColor& background) {
  if (function != GridBackground::kWorkArea && HoldsForTheRun(function)) return {};
  return WriteText(folder, PlaceOf(function), background.Text());
}

}  // namespace tarnwell::settings
