#pragma once

#include "storage/program_folder.h"
#include "text/date.h"

namespace tarnwell::shell {

// True when the planner holds at least one appointment text for that day; a time alone is none.
bool HasAppointments(storage::ProgramFolder& folder, text::Date day);

}  // namespace tarnwell::shell
