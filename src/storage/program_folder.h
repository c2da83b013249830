// The folder that holds all of the user's files, with the supplied read-only files behind it.

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "storage/file_system.h"
#include "storage/folder_names.h"
#include "storage/redo_note.h"

namespace tarnwell::storage {

// True for a name that stays inside the folder: not empty, no separator ("/", "\", ":"), no control
// character, not "." or "..", not longer than a file system takes (255 bytes of UTF-8), and none of
// the names that the store keeps for itself (file_names::kOwnPrefix).
bool IsPlainFileName(std::string_view name);

// File names are texts of code page 1252 and become UTF-8 here. Names that differ only in capitals
// reach one file, the one that is there whatever its capitals. A name that isn't plain makes the
// operation fail, and so does a folder that is gone, full or read-only: what was there stays.
class ProgramFolder {
 public:
  // `supplied` is the folder of installed read-only files; empty for none.
  ProgramFolder(FileSystem& files, std::string user_folder, std::string supplied_folder = {});

  const std::string& path() const { return user_folder_; }
  FileSystem& files() const { return files_; }

  // Opens the user's own file; in mode kRead a supplied file of that name stands in for a missing
  // one.
  std::unique_ptr<File> Open(std::string_view name, OpenMode mode);
  // Whole content, the user's own before the supplied one; empty when there is none, when it can't
  // be read, or when it is larger than `kMaxWholeFile` bytes.
  std::optional<std::string> ReadWhole(std::string_view name);
  // Replaces the file whole: at any instant the name holds the old or the new content, and when it
  // returns true the new one is on the disk.
  bool WriteWhole(std::string_view name, std::string_view content);
  // Writes to a file that Open gave for `name`. A process killed meanwhile leaves the old or the
  // new bytes, the new ones perhaps only after Recover.
  bool WriteAt(File& file, std::string_view name, std::uint64_t offset, std::string_view bytes);
  // A missing file is no error; supplied files are never touched.
  bool Delete(std::string_view name);
  bool Copy(std::string_view source, std::string_view target);
  bool Exists(std::string_view name);
  // Length in bytes of the user's own file, 0 when there is none.
  std::uint64_t Length(std::string_view name);
  // Finishes what a killed process left half written and removes what interrupted saves left
  // behind. For the start of the program, under its FolderLock.
  void Recover();

  static constexpr std::uint64_t kMaxWholeFile = 256u << 20;

 private:
  std::unique_ptr<File> OpenSupplied(std::string_view name);
  void FinishTornWrite();
  // The path of a file that wasn't located; none when it may exist under other capitals.
  std::optional<std::string> NewPath(std::string_view name) const;

  FileSystem& files_;
  std::string user_folder_;
  FolderNames user_names_;
  FolderNames supplied_names_;
  RedoNote redo_note_;
};

}  // namespace tarnwell::storage
