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
};

// Whether a choice holds until the program ends instead of being read back.
constexpr bool HoldsForTheRun(GridBackground function) {
  return function == GridBackground::kWorkArea || function == GridBackground::kPlanner;
}

// Nothing where a choice holds for the run, whatever is stored. The record of the display grids is
// the modem's too: a number that is a serial port is no colour.
StoredColor ReadGridBackground(storage::ProgramFolder& folder, GridBackground function);
void WriteGridBackground(storage::ProgramFolder& folder, GridBackground function,
                         const StoredColor& background);

inline constexpr int kFirstPort = 1;
inline constexpr int kLastPort = 99;

// The serial port of the modem, 1 where none is stored.
int ReadModemPort(storage::ProgramFolder& folder);
// In place of the display grids' background, which is the default from then on.
void WriteModemPort(storage::ProgramFolder& folder, int port);

}  // namespace tarnwell::settings
