#include "parts/user_names.h"

#include <algorithm>
#include <utility>

#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

std::string PlainKey(std::string_view name) { return text::UpperCase(text::Trim(name)); }

storage::NameList ReadNames(storage::ProgramFolder& folder, std::string_view file) {
  storage::NameList list = storage::ReadNameList(folder, file);
  std::erase_if(list.names, [](const std::string& name) { return text::Trim(name).empty(); });
  return list;
}

}  // namespace

UserNames::UserNames(storage::ProgramFolder& folder, UserNamesStyle style)
    : folder_(folder), style_(std::move(style)) {
  if (!style_.key) style_.key = PlainKey;
}

storage::Outcome UserNames::Read() {
  storage::NameList read = ReadNames(folder_, style_.file);
  names_ = std::move(read.names);
  return read.fault;
}

int UserNames::Find(std::string_view name) const {
  const std::string key = style_.key(AsListed(name));
  const auto found =
      std::ranges::find_if(names_, [&](const auto& listed) { return style_.key(listed) == key; });
  return found == names_.end() ? kNone : static_cast<int>(found - names_.begin());
}

storage::Outcome UserNames::Add(std::string_view name) {
  if (const auto read = Refresh(); !read) return read;
  if (Find(name) != kNone || !has_room()) return {};
  std::vector<std::string> names = names_;
  names.push_back(AsListed(name));
  return Write(std::move(names));
}

storage::Outcome UserNames::Remove(std::string_view name) {
  if (const auto read = Refresh(); !read) return read;
  const int place = Find(name);
  if (place == kNone) return {};
  std::vector<std::string> names = names_;
  names.erase(names.begin() + place);
  return Write(std::move(names));
}

storage::Outcome UserNames::Replace(std::vector<std::string> names) {
  if (const auto read = Refresh(); !read) return read;
  return Write(std::move(names));
}

std::string UserNames::AsListed(std::string_view name) {
  std::string listed(name);
  std::ranges::replace(listed, '"', '\'');
  return listed;
}

// What can't be read leaves what was.
storage::Outcome UserNames::Refresh() {
  storage::NameList read = ReadNames(folder_, style_.file);
  if (read.fault == storage::Fault::kNone) names_ = std::move(read.names);
  return read.fault;
}

storage::Outcome UserNames::Write(std::vector<std::string> names) {
  const storage::Outcome written = names.empty() && style_.goes_when_empty
                                       ? folder_.Delete(style_.file)
                                       : storage::WriteNameList(folder_, style_.file, names);
  if (written) names_ = std::move(names);
  return written;
}

}  // namespace tarnwell::parts
