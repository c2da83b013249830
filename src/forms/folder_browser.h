#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"

namespace tarnwell::forms {

// A folder from which a person begins to look for another one.
struct Place {
  std::string name;  // as the user knows it: "/home/ann", or the name of a stick
  std::string path;

  friend bool operator==(const Place&, const Place&) = default;
};

// The folders of the machine outside the program's own. A path is written as this system writes it,
// with "/" between its names: "/home/ann". Texts are code page 1252.
class FolderBrowser {
 public:
  virtual ~FolderBrowser() = default;

  // The user's own folders first, then the volumes.
  virtual std::vector<Place> Places() = 0;
  // The program's own folder.
  virtual std::string ProgramPath() = 0;
  // The names in a folder, sorted; empty when it can't be read. A name that code page 1252 can't
  // hold is left out.
  virtual std::optional<std::vector<std::string>> Folders(const std::string& path) = 0;
  virtual std::optional<std::vector<std::string>> Files(const std::string& path) = 0;
  // How many files are left out for their names.
  virtual int FilesLeftOut(const std::string& path) = 0;
  // Replaces the file whole.
  virtual storage::Outcome WriteFile(const std::string& path, std::string_view content) = 0;
};

}  // namespace tarnwell::forms
