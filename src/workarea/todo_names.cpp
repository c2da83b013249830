#include "workarea/todo_names.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

std::string Folded(std::string_view name) { return text::UpperCase(text::TrimRight(name)); }

}  // namespace

void ToDoNames::Read(storage::ProgramFolder& folder) {
  storage::NameList list = storage::ReadNameList(folder, file_names::kToDoNames);
  names_ = std::move(list.names);
  std::erase_if(names_, [](auto& name) { return text::Trim(name).empty(); });
  fault_ = list.fault;
}

const std::string* ToDoNames::Find(std::string_view name) const {
  const std::string folded = Folded(name);
  const auto found =
      std::ranges::find_if(names_, [&](auto& known) { return Folded(known) == folded; });
  return found == names_.end() ? nullptr : &*found;
}

bool ToDoNames::Add(std::string_view name) {
  if (!is_readable() || names_.size() >= kMostToDoNames) return false;
  if (text::Trim(name).empty() || Find(name)) return false;
  names_.emplace_back(name);
  return true;
}

bool ToDoNames::Remove(std::string_view name) {
  const std::string folded = text::UpperCase(text::Trim(name));
  const auto found = std::ranges::find_if(
      names_, [&](auto& known) { return text::UpperCase(text::Trim(known)) == folded; });
  if (found == names_.end()) return false;
  names_.erase(found);
  return true;
}

bool ToDoNames::Correct(std::string_view name, std::string_view corrected) {
  const std::string folded = Folded(name);
  const auto found =
      std::ranges::find_if(names_, [&](auto& known) { return Folded(known) == folded; });
  if (found == names_.end()) return false;
  if (folded != Folded(corrected) && Find(corrected)) {
    names_.erase(found);
  } else {
    *found = corrected;
  }
  return true;
}

storage::Outcome ToDoNames::Write(storage::ProgramFolder& folder) const {
  if (!is_readable()) return fault_;
  return storage::WriteNameList(folder, file_names::kToDoNames, names_);
}

storage::Outcome ToDoNames::WriteWithMarker(storage::ProgramFolder& folder) const {
  if (!is_readable()) return fault_;
  const auto marked = storage::WriteNameList(folder, file_names::kLocation, {" "});
  const auto written = Write(folder);
  return written ? marked : written;
}

}  // namespace tarnwell::workarea
