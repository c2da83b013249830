// The program's own files, as a set finds them.

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "storage/program_folder.h"

namespace tarnwell::backup {

struct LiveFile {
  std::unique_ptr<storage::File> file;
  storage::Fault fault = storage::Fault::kNone;  // why there is none: kMissing, or it can't be read
};

// The user's own; no supplied file stands in for it.
LiveFile OpenLive(storage::ProgramFolder& folder, std::string_view name);

// The user's own files whose names fit, sorted.
std::vector<std::string> LiveFiles(storage::ProgramFolder& folder,
                                   const std::function<bool(std::string_view name)>& fits);

}  // namespace tarnwell::backup
