// The reusable names of To Do items. docs/formats/todoname.md has the layout.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::workarea {

inline constexpr std::size_t kMostToDoNames = 1000;

// The names in the order in which they came, as they were read last or changed since. Names that
// differ only in capitals or in blanks at their end are the same.
class ToDoNames {
 public:
  // A missing file is an empty list. One that can't be read is empty too, and is never written
  // over: the fault tells.
  void Read(storage::ProgramFolder& folder);
  storage::Fault fault() const { return fault_; }
  bool is_readable() const { return fault_ == storage::Fault::kNone; }

  const std::vector<std::string>& names() const { return names_; }
  // The name as it is kept; nullptr where it isn't.
  const std::string* Find(std::string_view name) const;

  // Behind the last one. False for a blank name, one that is there, one more than kMostToDoNames,
  // and in a list that can't be read. It isn't on the disk before Write.
  bool Add(std::string_view name);
  // Blanks at its beginning don't count either. False where there is no such name.
  bool Remove(std::string_view name);
  // A name was corrected: the new one takes its place, or falls together with one that is there.
  // False where there is no such name.
  bool Correct(std::string_view name, std::string_view corrected);

  // The whole list; nothing for one that can't be read.
  storage::Outcome Write(storage::ProgramFolder& folder) const;
  // Behind a new name: the list, and the marker that goes with it.
  storage::Outcome WriteWithMarker(storage::ProgramFolder& folder) const;

 private:
  std::vector<std::string> names_;
  storage::Fault fault_ = storage::Fault::kNone;
};

}  // namespace tarnwell::workarea
