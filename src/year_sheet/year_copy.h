// A year's file copied over that of the next year. What was there is kept beside it, under
// file_names::Replaced, until a person who has seen the copy saves that year.

#pragma once

#include <string_view>

#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::year_sheet {

// However often a copy is made again, the file that a person saved last stays. A refusal leaves
// both files as they were.
storage::Outcome CopyYearFile(storage::ProgramFolder& folder, std::string_view from,
                              std::string_view to);
// Before the caller writes other content over a file: keeps what is there.
storage::Outcome KeepReplaced(storage::ProgramFolder& folder, std::string_view name);
// Behind a save of that file. Where the disk refuses, what was kept just stays.
void ForgetReplaced(storage::ProgramFolder& folder, std::string_view name);

}  // namespace tarnwell::year_sheet
