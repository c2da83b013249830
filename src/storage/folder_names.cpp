#include "storage/folder_names.h"

#include <utility>

#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::storage {

std::optional<std::string> FolderNames::Known(std::string_view name) const {
  const auto known = on_disk_.find(text::UpperCase(name));
  if (known == on_disk_.end()) return std::nullopt;
  return folder_ + "/" + known->second;
}

std::optional<std::string> FolderNames::Locate(std::string_view name) {
  if (auto path = Known(name); path && files_.Exists(*path)) return path;
  is_listed_ = Scan();
  return is_listed_ ? Known(name) : std::nullopt;
}

void FolderNames::Learn(std::string_view name) {
  on_disk_.emplace(text::UpperCase(name), text::ToUtf8(name).bytes());
}

void FolderNames::Forget(std::string_view name) { on_disk_.erase(text::UpperCase(name)); }

bool FolderNames::Scan() {
  auto listing = folder_.empty() ? std::nullopt : files_.List(folder_);
  if (!listing) return false;
  const auto before = std::exchange(on_disk_, {});
  for (std::string& on_disk : *listing) {
    const text::Utf8 listed(on_disk);
    const std::string name = text::FromUtf8(listed);
    if (text::ToUtf8(name) != listed) continue;  // no name of the code page can mean this file
    std::string folded = text::UpperCase(name);
    const auto [entry, is_first] = on_disk_.try_emplace(folded, on_disk);
    if (is_first) continue;
    const auto known = before.find(folded);
    const bool keep = known != before.end() && known->second == entry->second;
    const bool take = known != before.end() && known->second == on_disk;
    if (take || (!keep && on_disk < entry->second)) entry->second = std::move(on_disk);
  }
  return true;
}

}  // namespace tarnwell::storage
