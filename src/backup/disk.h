// The folder on a disk that a set is written to or read from.

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/file_system.h"
#include "storage/folder_names.h"

namespace tarnwell::backup {

// A path without the "/" behind it; "/" stays.
std::string WithoutSlash(std::string path);

// Names are texts of code page 1252 and are found whatever their capitals. None leads out of the
// folder.
class Disk {
 public:
  // `path` is a FolderBrowser's, in code page 1252.
  Disk(storage::FileSystem& files, std::string_view path);

  // Null where there is no such file, or none that can be read.
  std::unique_ptr<storage::File> Open(std::string_view name);
  bool Has(std::string_view name) { return names_.Locate(name).has_value(); }
  bool HoldsBytes(std::string_view name);
  // An empty file in the place of whatever has that name, and null where the disk refuses. It
  // counts as put there.
  std::unique_ptr<storage::File> Make(std::string_view name);
  // The file as it is, to be written to; null where there is none.
  std::unique_ptr<storage::File> OpenToWrite(std::string_view name);
  // True when there is no such file any more.
  bool Remove(std::string_view name);
  // False where one that fits is still there.
  bool RemoveAll(const std::function<bool(std::string_view name)>& fits);
  // What stands there; none where the folder can't be read.
  std::optional<std::vector<std::string>> Names();
  // Deletes what was put there. False where something of it is still there.
  bool RemovePut();
  // The names are on the disk when it returns true.
  bool Flush() { return files_.FlushFolder(path_); }
  // A byte can be written there, or the disk is only full.
  bool IsWritable();
  storage::Fault fault() const { return files_.fault(); }

 private:
  storage::FileSystem& files_;
  std::string path_;  // UTF-8, without "/" behind
  storage::FolderNames names_;
  std::vector<std::string> put_;
};

}  // namespace tarnwell::backup
