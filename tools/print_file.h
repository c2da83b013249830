#pragma once

#include <iosfwd>
#include <string_view>

#include "storage/program_folder.h"
#include "tools/file_kinds.h"

namespace tarnwell::tools {

// Prints in UTF-8 what a file holds, one value, record, row or day a line. Empty records, rows and
// days are left out. A file that isn't there isn't made.
void PrintFile(storage::ProgramFolder& folder, std::string_view name, const FileKind& kind,
               std::ostream& out);

}  // namespace tarnwell::tools
