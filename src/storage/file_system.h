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

namespace tarnwell::storage {

enum class OpenMode {
  kRead,         // must exist
  kReadWrite,    // must exist
  kCreate,       // read and write; made if missing
  kCreateFresh,  // read and write; made, and an existing file is an error
};

// Paths are UTF-8. No member throws; failure is the false, empty or negative result.
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

  virtual std::unique_ptr<File> Open(const std::string& path, OpenMode mode) = 0;
  // True for a plain file.
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
  // The names of the plain files in a folder, in no order; none when it can't be read.
  virtual std::optional<std::vector<std::string>> List(const std::string& folder) = 0;
};

// The machine's own file system.
FileSystem& RealFileSystem();

}  // namespace tarnwell::storage
