// The one door to the disk. The real one is POSIX; tests hand in one that fails on demand.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"

namespace tarnwell::storage {

enum class OpenMode {
  kRead,         // must exist
  kReadWrite,    // must exist
  kCreate,       // read and write; made if missing
  kCreateFresh,  // read and write; made, and an existing file is an error
};

// Paths are UTF-8. No member throws; failure is the false, empty or negative result, and the file
// system's `fault` says why.
class File {
 public:
  virtual ~File() = default;

  // Reads up to buffer.size() bytes at `offset`; fewer only at the end of the file; -1 on error.
  virtual std::ptrdiff_t ReadAt(std::uint64_t offset, std::span<char> buffer) = 0;
  // Writes all bytes at `offset`, or returns false.
  virtual bool WriteAt(std::uint64_t offset, std::string_view bytes) = 0;
  virtual std::optional<std::uint64_t> Size() = 0;
  // The bytes are on the disk when it returns true.
  virtual bool Flush() = 0;
  // Closes and tells whether that worked. The destructor closes too, in silence.
  virtual bool Close() = 0;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Opens a plain file. What isn't one is refused, and so is a link at the path's last step: it
  // could lead out of the folder.
  virtual std::unique_ptr<File> Open(const std::string& path, OpenMode mode) = 0;
  // True for whatever has that name, plain file or not.
  virtual bool Exists(const std::string& path) = 0;
  virtual bool Rename(const std::string& from, const std::string& to) = 0;
  // A missing file is no error.
  virtual bool Remove(const std::string& path) = 0;
  // Who may read and write `to` becomes who may read and write `from`, where the machine can.
  virtual void CopyPermissions(const std::string& from, const std::string& to) = 0;
  // The folder's names are on the disk when it returns true.
  virtual bool FlushFolder(const std::string& path) = 0;
  // Makes a folder and those above it; one that is there already is no error.
  virtual bool MakeFolder(const std::string& path) = 0;
  // All names in a folder, in no order; none when it can't be read.
  virtual std::optional<std::vector<std::string>> List(const std::string& folder) = 0;
  // Why the last call that failed did, be it here or on one of the files.
  virtual Fault fault() const = 0;
};

// The machine's own file system.
FileSystem& RealFileSystem();

}  // namespace tarnwell::storage
