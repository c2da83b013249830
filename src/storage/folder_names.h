#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "storage/file_system.h"

namespace tarnwell::storage {

// The files of one folder, found by names of code page 1252 whatever their capitals. Where
// two files differ only in capitals, a name reaches the one it reached before, else the first in
// byte order; the other stays untouched. The folder may change behind our back.
class FolderNames {
 public:
  FolderNames(FileSystem& files, std::string folder) : files_(files), folder_(std::move(folder)) {}

  // The path of a file seen before. It needn't be there any more.
  std::optional<std::string> Known(std::string_view name) const;
  // The path of a file that is there now; reads the folder anew if the file isn't where it was.
  std::optional<std::string> Locate(std::string_view name);
  // False when the last Locate couldn't read the folder: the file may be there all the same.
  bool is_listed() const { return is_listed_; }

  void Learn(std::string_view name);
  void Forget(std::string_view name);

 private:
  bool Scan();

  FileSystem& files_;
  std::string folder_;
  std::map<std::string, std::string, std::less<>> on_disk_;  // folded name to UTF-8 name
  bool is_listed_ = false;
};

}  // namespace tarnwell::storage
