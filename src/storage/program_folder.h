// The folder that holds all of the user's files, with the supplied read-only files behind it.

#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "storage/fault.h"
#include "storage/file_system.h"
#include "storage/folder_names.h"
#include "storage/redo_note.h"

namespace tarnwell::storage {

// True for a name that stays inside the folder: not empty, no separator ("/", "\", ":"), no control
// character, not "." or "..", not longer than a file system takes (255 bytes of UTF-8), and none of
// the names that the store keeps for itself (file_names::kOwnPrefix).
bool IsPlainFileName(std::string_view name);

// The content of a whole file, or why there is none.
struct ReadResult {
  std::string content;
  Fault fault = Fault::kNone;

  bool is_missing() const { return fault == Fault::kMissing; }
  // There is something that can't be read: what is on show is not what is on the disk, and nothing
  // may be written over it.
  bool is_unreadable() const { return fault != Fault::kNone && fault != Fault::kMissing; }
};

// File names are texts of code page 1252 and become UTF-8 here. Names that differ only in capitals
// reach one file, the one that is there whatever its capitals. A name that isn't plain makes the
// operation fail, and so does a folder that is gone, full or read-only: what was there stays.
class ProgramFolder {
 public:
  // `supplied_folder` has the installed read-only files, those of its folder kLinksFolder too;
  // empty for none.
  ProgramFolder(FileSystem& files, std::string user_folder, std::string supplied_folder = {});

  const std::string& path() const { return user_folder_; }
  FileSystem& files() const { return files_; }

  // Opens the user's own file; in mode kRead a supplied file of that name stands in for a missing
  // one.
  std::unique_ptr<File> Open(std::string_view name, OpenMode mode);
  // Whole content, the user's own before the supplied one, of at most `longest` bytes.
  ReadResult Read(std::string_view name, std::uint64_t longest = kMaxWholeFile);
  // The same for readers to whom a file that can't be read is as good as none: what they show is
  // never written back.
  std::optional<std::string> ReadWhole(std::string_view name);
  // Replaces the file whole: at any instant the name holds the old or the new content, and when it
  // returns true the new one is on the disk.
  Outcome WriteWhole(std::string_view name, std::string_view content);
  // Writes to a file that Open gave for `name`. A process killed meanwhile, or a disk that fails in
  // the middle, leaves the old or the new bytes, perhaps only after Recover. A full or failing disk
  // on which a write can't be guarded so gets none.
  bool WriteAt(File& file, std::string_view name, std::uint64_t offset, std::string_view bytes);
  // Before the user's next gesture: no file is open then. Writes that come soon behind each other
  // share one note, whose file stays open until this.
  void CloseNote() { redo_note_.Close(); }
  // A missing file is no error; supplied files are never touched.
  Outcome Delete(std::string_view name);
  Outcome Copy(std::string_view source, std::string_view target);
  bool Exists(std::string_view name);
  // Length in bytes of the user's own file, 0 when there is none or when it can't be told.
  std::uint64_t Length(std::string_view name);
  // Why the last opening, writing, deleting or copying that failed did.
  Fault fault() const { return fault_; }
  // Finishes what a killed process left half written and removes what interrupted saves left
  // behind. For the start of the program, under its FolderLock.
  void Recover();

  static constexpr std::uint64_t kMaxWholeFile = 256u << 20;

 private:
  struct Opened {
    std::unique_ptr<File> file;
    Fault fault = Fault::kNone;
  };
  Opened TryOpen(std::string_view name, OpenMode mode);
  Opened OpenAt(const std::string& path, OpenMode mode);
  Opened OpenSupplied(std::string_view name);
  bool IsSupplied(std::string_view name);
  // Keeps the fault of a call that didn't.
  bool Worked(bool worked);
  bool WriteAcrossPages(File& file, std::string_view name, std::uint64_t offset,
                        std::string_view bytes);
  // False when the disk refused again.
  bool FinishTornWrite(const RedoNote::Write& write);
  // The path of a file that isn't there yet.
  std::string NewPath(std::string_view name) const;
  // Why the folder couldn't be listed.
  Fault FolderFault() const;

  FileSystem& files_;
  std::string user_folder_;
  FolderNames user_names_;
  std::array<FolderNames, 2> supplied_names_;
  RedoNote redo_note_;
  Fault fault_ = Fault::kNone;
};

}  // namespace tarnwell::storage
