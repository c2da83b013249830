#include "workarea/todo_names.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

std::string Folded(std::string_view name) { return text::UpperCase(text::TrimRight(name)); }

auto PlaceOf(std::vector<std::string>& names, std::string_view name) {
  return std::ranges::find(names, Folded(name), Folded);
}

}  // namespace

ToDoNames::ToDoNames(storage::ProgramFolder& folder)
    : folder_(folder),
      list_(folder, {.file = file_names::kToDoNames, .key = Folded, .most = kMostToDoNames}) {}

const std::string* ToDoNames::Find(std::string_view name) const {
  const int place = list_.Find(name);
  return place == parts::UserNames::kNone ? nullptr : &names()[static_cast<std::size_t>(place)];
}

// The marker says nothing of the list, so it doesn't matter whether it could be written.
storage::Outcome ToDoNames::Add(std::string_view name) {
  if (!is_readable() || text::Trim(name).empty() || Find(name) || !list_.has_room()) return {};
  storage::WriteNameList(folder_, file_names::kLocation, {" "});
  return list_.Add(name);
}

storage::Outcome ToDoNames::Remove(std::string_view name) {
  const std::string wanted = text::Trim(name);
  const auto found = std::ranges::find_if(names(), [&](const std::string& listed) {
    return text::EqualIgnoringCase(text::Trim(listed), wanted);
  });
  return found == names().end() ? storage::Outcome() : list_.Remove(std::string(*found));
}

storage::Outcome ToDoNames::Correct(const Corrections& corrections) {
  std::vector<std::string> names = list_.names();
  for (const auto& [name, corrected] : corrections) {
    const auto found = PlaceOf(names, name);
    if (found == names.end()) continue;
    if (Folded(name) != Folded(corrected) && PlaceOf(names, corrected) != names.end()) {
      names.erase(found);
    } else {
      *found = corrected;
    }
  }
  return names == list_.names() ? storage::Outcome() : list_.Replace(std::move(names));
}

}  // namespace tarnwell::workarea
