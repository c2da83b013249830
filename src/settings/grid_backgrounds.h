#pragma once

#include "settings/stored_color.h"
#include "storage/program_folder.h"

namespace tarnwell::settings {

// The functions whose grids have a background of their own.
enum class GridBackground {
  kBudget,
  kDisplayGrids,  // contacts and employees, who share one
  kWorkArea,      // written only: each run starts with the default background
  kPlanner,       // has no record: likewise
  kLeave,         // nor has this one
};

// Whether a choice holds until the program ends instead of being read back.
constexpr bool HoldsForTheRun(GridBackground function) {
  return function == GridBackground::kWorkArea || function == GridBackground::kPlanner ||
         function == GridBackground::kLeave;
}

// Nothing where a choice holds for the run, whatever is stored.
StoredColor ReadGridBackground(storage::ProgramFolder& folder, GridBackground function);
storage::Outcome WriteGridBackground(storage::ProgramFolder& folder, GridBackground function,
                                     const StoredColor& background);

}  // namespace tarnwell::settings
