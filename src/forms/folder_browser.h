#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::forms {

// The folders of the machine outside the program's own. A drive, "c:" and so on, stands for a
// mounted volume; "c:" is always the first. A path is a drive and the names of folders, each behind
// a "\": "c:\", "c:\home\ann". Texts are code page 1252.
class FolderBrowser {
 public:
  virtual ~FolderBrowser() = default;

  virtual std::vector<std::string> Drives() = 0;
  // The program's own folder.
  virtual std::string ProgramPath() = 0;
  // The names in a folder, sorted; empty when it can't be read. A name that code page 1252 can't
  // hold is left out.
  virtual std::optional<std::vector<std::string>> Folders(const std::string& path) = 0;
  virtual std::optional<std::vector<std::string>> Files(const std::string& path) = 0;
  // Replaces the file whole. False when that didn't work.
  virtual bool WriteFile(const std::string& path, std::string_view content) = 0;
};

}  // namespace tarnwell::forms
