#include "year_sheet/year_copy.h"

#include "storage/file_names.h"

namespace tarnwell::year_sheet {

using storage::file_names::Replaced;

storage::Outcome KeepReplaced(storage::ProgramFolder& folder, std::string_view name) {
  const std::string kept = Replaced(name);
  if (!folder.Exists(name) || folder.Exists(kept)) return {};
  return folder.Copy(name, kept);
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
