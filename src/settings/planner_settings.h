#pragma once

#include "storage/program_folder.h"

namespace tarnwell::settings {

// Where planner rows without a time go among the others: 0 "First", 1 "Last", as the numbers are
// stored. Anything else on the disk reads as 0.
int ReadSortTime(storage::ProgramFolder& folder);
void WriteSortTime(storage::ProgramFolder& folder, int option);

}  // namespace tarnwell::settings
