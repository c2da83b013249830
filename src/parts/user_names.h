// The names that a user gave to things, and the file that lists them.

#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "storage/program_folder.h"

namespace tarnwell::parts {

struct UserNamesStyle {
  std::string_view file;  // of file_names.h
  // Two names with the same key count as one. Left out, capitals and blanks at the ends don't
  // count.
  std::function<std::string(std::string_view name)> key = {};
  std::size_t most = std::numeric_limits<std::size_t>::max();  // names
  bool goes_when_empty = false;  // no file remains behind the last name
};

// The list as it was read last or changed since. A change reads the file anew, and writes it whole:
// where it can't be read or the disk refuses, the list stays as it was, here and on the disk. So a
// failed read never becomes a shortened list.
class UserNames {
 public:
  static constexpr int kNone = -1;

  UserNames(storage::ProgramFolder& folder, UserNamesStyle style);

  // A missing file gives no names, and so does one that can't be read: the outcome tells. Blank
  // lines are no names.
  storage::Outcome Read();

  const std::vector<std::string>& names() const { return names_; }
  // The place of the name that counts as this one, 0-based.
  int Find(std::string_view name) const;
  bool has_room() const { return names_.size() < style_.most; }

  // Puts it at the end, as AsListed. Nothing is done for a name that is there, and none beyond the
  // most that the list takes.
  storage::Outcome Add(std::string_view name);
  // Nothing is done for a name that isn't there.
  storage::Outcome Remove(std::string_view name);
  storage::Outcome Replace(std::vector<std::string> names);

  // What a list can hold of a name: a double quote, which ends a text in the file, becomes a single
  // one.
  static std::string AsListed(std::string_view name);

 private:
  storage::Outcome Refresh();
  storage::Outcome Write(std::vector<std::string> names);

  storage::ProgramFolder& folder_;
  UserNamesStyle style_;
  std::vector<std::string> names_;
};

}  // namespace tarnwell::parts
