#pragma once

#include "storage/program_folder.h"

namespace tarnwell::settings {

// The unit of all vehicles' distances, as it is stored.
enum class DistanceUnit { kMiles = 0, kKilometers = 1 };

DistanceUnit ReadDistanceUnit(storage::ProgramFolder& folder);
storage::Outcome WriteDistanceUnit(storage::ProgramFolder& folder, DistanceUnit unit);

// The date checker refuses dates in the future. It is on unless it was switched off.
bool ReadDateCheckerOn(storage::ProgramFolder& folder);
storage::Outcome WriteDateCheckerOn(storage::ProgramFolder& folder, bool on);

}  // namespace tarnwell::settings
