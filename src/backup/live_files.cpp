#include "backup/live_files.h"

#include <algorithm>

#include "text/code_page_1252.h"

namespace tarnwell::backup {

LiveFile OpenLive(storage::ProgramFolder& folder, std::string_view name) {
  // Only a file that must exist is never a supplied one.
  if (auto file = folder.Open(name, storage::OpenMode::kReadWrite)) return {std::move(file)};
  if (folder.fault() == storage::Fault::kMissing) return {nullptr, storage::Fault::kMissing};
  // One that may not be changed can still be read.
  auto file = folder.Open(name, storage::OpenMode::kRead);
  const storage::Fault fault = file ? storage::Fault::kNone : folder.fault();
  return {std::move(file), fault};
}

std::vector<std::string> LiveFiles(storage::ProgramFolder& folder,
                                   const std::function<bool(std::string_view name)>& fits) {
  auto names = folder.files().List(folder.path()).value_or(std::vector<std::string>());
  std::vector<std::string> found;
  for (const std::string& on_disk : names) {
    const std::string name = text::FromUtf8(text::Utf8(on_disk));
    if (text::ToUtf8(name).bytes() == on_disk && fits(name)) found.push_back(name);
  }
  std::ranges::sort(found);
  return found;
}

}  // namespace tarnwell::backup
