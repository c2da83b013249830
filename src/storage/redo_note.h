#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "storage/file_system.h"

namespace tarnwell::storage {

// One write to a file, noted beforehand so that it can be finished after a kill. The machine takes
// a write page by page, and a process that is killed stops between two pages: only a write that
// spans pages can be torn, and its first part is always the one that was written. A write that the
// disk broke off stays noted until its bytes, or newer ones, are in the file. The note's file is
// open from the first Set to Close, or each note would cost as much as the write.
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

  // Notes a write that is about to be made, behind the unfinished ones. False when it couldn't be
  // noted; more than 65535 bytes never are, which is no failure.
  bool Set(std::string_view file, std::uint64_t offset, std::string_view bytes);
  // The write that was set was made, or undone.
  void Clear();
  // The disk broke it off.
  void BrokeOff(std::string_view file, std::uint64_t offset, std::string_view bytes);
  // These bytes are in the file now: unfinished writes that they lie over don't come back.
  void Overwritten(std::string_view file, std::uint64_t offset, std::string_view bytes);

  // No more writes for now.
  void Close() { file_.reset(); }

  // At the start of the program: hands over the writes that were noted and not cleared, oldest
  // first, and keeps those for which `settle` gives false. Without any the note's file goes.
  void Settle(const std::function<bool(const Write&)>& settle);

 private:
  // A write that waits to be finished, and where it is noted.
  struct Unfinished {
    std::uint64_t place = 0;
    Write write;
  };
  std::vector<Unfinished> Read();
  void Strike(File& file, std::uint64_t place);

  FileSystem& files_;
  std::string path_;
  std::uint64_t number_ = 0;  // of the last note; 0 stands in one that was cleared
  std::uint64_t end_ = 0;     // where the next one goes
  std::unique_ptr<File> file_;
  bool is_set_ = false;
  std::vector<Unfinished> unfinished_;
};

}  // namespace tarnwell::storage
