#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "storage/file_system.h"

namespace tarnwell::storage {

// One write to a file, noted beforehand so that it can be finished after a kill. The machine takes
// a write page by page, and a process that is killed stops between two pages: only a write that
// spans pages can be torn, and its first part is always the one that was written.
class RedoNote {
 public:
  struct Write {
    std::string file;
    std::uint64_t offset = 0;
    std::string bytes;
  };

  RedoNote(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

  // How many of `size` bytes at `offset` lie in the first page. All of them: it can't be torn.
  static std::size_t InFirstPage(std::uint64_t offset, std::size_t size);

  // Notes a write that is about to be made. A note that can't be made leaves the write unguarded.
  void Set(std::string_view file, std::uint64_t offset, std::string_view bytes);
  // The write was made.
  void Clear();
  // The write that was noted and not cleared.
  std::optional<Write> Read();
  void Remove();

 private:
  FileSystem& files_;
  std::string path_;
  std::uint64_t number_ = 0;    // of the last note; 0 stands in a cleared one
  std::unique_ptr<File> file_;  // stays open, or each note would cost as much as the write
};

}  // namespace tarnwell::storage
