#pragma once

#include <string>

#include "storage/program_folder.h"

namespace tarnwell::settings {

// The folder that a backup was last made to or restored from; empty for none.
std::string ReadBackupPlace(storage::ProgramFolder& folder);
storage::Outcome WriteBackupPlace(storage::ProgramFolder& folder, const std::string& path);

}  // namespace tarnwell::settings
