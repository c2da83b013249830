#pragma once

#include "storage/program_folder.h"

namespace tarnwell::settings {

// Where rows without a time go among the others. The calendar sheet has a choice of its own.
enum class SortTime { kPlanner, kCalendarSheet };

// 0 "First", 1 "Last", as the numbers are stored. Anything else on the disk reads as 0.
int ReadSortTime(storage::ProgramFolder& folder, SortTime owner = SortTime::kPlanner);
storage::Outcome WriteSortTime(storage::ProgramFolder& folder, int option,
                               SortTime owner = SortTime::kPlanner);

}  // namespace tarnwell::settings
