// The titles of the worksheet buttons. docs/formats/ralist.md has the layout.

#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "storage/program_folder.h"

namespace tarnwell::workarea {

inline constexpr int kWorksheetCount = 20;                 // buttons, from 1
inline constexpr std::size_t kLongestWorksheetTitle = 18;  // characters

// By the number of the button less one.
using NewTitles = std::array<std::string, kWorksheetCount>;

// All titles, as they were read last.
class WorksheetTitles {
 public:
  // A missing file gives no titles, and so does one that can't be read: the outcome tells.
  storage::Outcome Read(storage::ProgramFolder& folder);
  // An empty new title leaves the one before; blanks blank it. Where the disk refuses, those in
  // front may be stored; they are read anew.
  storage::Outcome Change(storage::ProgramFolder& folder, const NewTitles& titles);

  // What stands on the button.
  std::string Caption(int number) const;
  // It has a title, be it a blank one.
  bool IsSet(int number) const { return !titles_[static_cast<std::size_t>(number)].empty(); }

 private:
  std::array<std::string, kWorksheetCount + 1> titles_;  // by number; place 0 isn't used
};

}  // namespace tarnwell::workarea
