// The reusable names of To Do items. docs/formats/todoname.md has the layout.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "parts/user_names.h"

namespace tarnwell::workarea {

inline constexpr std::size_t kMostToDoNames = 1000;

// The names in the order in which they came. Names that differ only in capitals or in blanks at
// their end are the same. What the disk refuses leaves the list as it was.
class ToDoNames {
 public:
  explicit ToDoNames(storage::ProgramFolder& folder);

  // A missing file is an empty list. One that can't be read is empty too, and is never written
  // over: the fault tells.
  void Read() { fault_ = list_.Read().fault(); }
  storage::Fault fault() const { return fault_; }
  bool is_readable() const { return fault_ == storage::Fault::kNone; }

  const std::vector<std::string>& names() const { return list_.names(); }
  // The name as it is kept; nullptr where it isn't.
  const std::string* Find(std::string_view name) const;

  // Behind the last one. Nothing is done for a blank name, one that is there, one more than
  // kMostToDoNames, and in a list that can't be read.
  storage::Outcome Add(std::string_view name);
  // Blanks at its beginning don't count either. Nothing is done where there is no such name.
  storage::Outcome Remove(std::string_view name);
  // Names were corrected: each new one takes the old one's place, or falls together with one that
  // is there. Those that aren't in the list don't count.
  using Corrections = std::vector<std::pair<std::string, std::string>>;  // the old and the new
  storage::Outcome Correct(const Corrections& corrections);

 private:
  storage::ProgramFolder& folder_;
  parts::UserNames list_;
  storage::Fault fault_ = storage::Fault::kNone;
};

}  // namespace tarnwell::workarea
