// The one way in which a file is replaced whole.

#pragma once

#include <string>
#include <string_view>

#include "storage/file_system.h"

namespace tarnwell::storage {

// Writes a sibling in `folder`, brings it to the disk, renames it to `target_path` and brings the
// rename to the disk. At any instant `target_path` holds the whole old or the whole new content,
// whether the save returns, fails or is killed. False when the new content isn't surely on the
// disk. A failed save leaves no sibling; what a killed one leaves, SweepSiblings removes.
bool SaveWhole(FileSystem& files, const std::string& folder, const std::string& target_path,
               std::string_view content);

void SweepSiblings(FileSystem& files, const std::string& folder);

}  // namespace tarnwell::storage
