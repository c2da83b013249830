#include "year_sheet/year_copy.h"

#include "storage/file_names.h"

namespace tarnwell::year_sheet {

using storage::file_names::Replaced;

storage::Outcome KeepReplaced(storage::ProgramFolder& folder, std::string_view name) {
  const std::string kept = Replaced(name);
  if (folder.Open(kept, storage::OpenMode::kRead)) return {};
  // A folder that can't be read isn't one without the file.
  if (folder.fault() != storage::Fault::kMissing) return folder.fault();
  const storage::Outcome copied = folder.Copy(name, kept);
  return copied.fault() == storage::Fault::kMissing ? storage::Outcome{} : copied;
}

storage::Outcome CopyYearFile(storage::ProgramFolder& folder, std::string_view from,
                              std::string_view to) {
  if (const storage::Outcome kept = KeepReplaced(folder, to); !kept) return kept;
  return folder.Copy(from, to);
}

void ForgetReplaced(storage::ProgramFolder& folder, std::string_view name) {
  folder.Delete(Replaced(name));
}

}  // namespace tarnwell::year_sheet
