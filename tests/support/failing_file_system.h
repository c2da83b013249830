// A file system that fails on demand.

#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "storage/file_system.h"

namespace tarnwell::testing {

// Passes every call on to the wrapped one unless the test wants it to fail. Calls are counted from
// 1, those to files as well. A write that fails has written its first half, as on a full disk.
class FailingFileSystem : public storage::FileSystem {
 public:
  explicit FailingFileSystem(storage::FileSystem& wrapped) : wrapped_(wrapped) {}

  // Asked before each call with its number; true makes it fail. It may also end the process.
  void FailWhen(std::function<bool(int)> fails) { fails_ = std::move(fails); }
  void FailAt(int call) {
    FailWhen([call](int number) { return number == call; });
  }
  void FailFrom(int call) {
    FailWhen([call](int number) { return number >= call; });
  }
  void Vanish() { FailFrom(0); }
  // All calls work again.
  void Recover() {
    FailWhen([](int) { return false; });
  }
  // The disk is full after so many more bytes.
  void AllowBytes(std::uint64_t count) { room_ = count; }
  void MakeReadOnly(bool is_read_only = true) { is_read_only_ = is_read_only; }

  // A disk of its own: the plain files in that folder take no more bytes than that together.
  struct Disk {
    std::uint64_t room = std::numeric_limits<std::uint64_t>::max();
    bool is_read_only = false;
    std::uint64_t told_more = 0;  // bytes that its files seem longer than they are
    bool forgets = false;         // takes each write, and keeps the first only
  };
  Disk& DiskAt(const std::string& folder) { return disks_[folder]; }

  int calls() const { return static_cast<int>(log_.size()); }
  // The names of the calls so far.
  const std::vector<std::string>& log() const { return log_; }

  std::unique_ptr<storage::File> Open(const std::string& path, storage::OpenMode mode) override {
    const bool is_denied = is_read_only_ && mode != storage::OpenMode::kRead;
    Disk* disk = DiskOf(path);
    const bool is_locked = disk && disk->is_read_only && mode != storage::OpenMode::kRead;
    auto file = Fails("open") || is_denied || Refuses(is_locked, storage::Fault::kReadOnly)
                    ? nullptr
                    : wrapped_.Open(path, mode);
    return file ? std::make_unique<FailingFile>(*this, std::move(file), path) : nullptr;
  }
  bool Exists(const std::string& path) override {
    return !Fails("exists") && wrapped_.Exists(path);
  }
  bool Rename(const std::string& from, const std::string& to) override {
    return !Fails("rename") && !is_read_only_ && wrapped_.Rename(from, to);
  }
  bool Remove(const std::string& path) override {
    const Disk* disk = DiskOf(path);
    const bool is_locked = disk && disk->is_read_only;
    return !Fails("remove") && !is_read_only_ && !Refuses(is_locked, storage::Fault::kReadOnly) &&
           wrapped_.Remove(path);
  }
  void CopyPermissions(const std::string& from, const std::string& to) override {
    if (!Fails("copy permissions")) wrapped_.CopyPermissions(from, to);
  }
  bool FlushFolder(const std::string& path) override {
    return !Fails("flush folder") && wrapped_.FlushFolder(path);
  }
  bool MakeFolder(const std::string& path) override {
    return !Fails("make folder") && !is_read_only_ && wrapped_.MakeFolder(path);
  }
  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    return Fails("list") ? std::nullopt : wrapped_.List(folder);
  }
  storage::Fault fault() const override {
    if (failed_) return storage::Fault::kBroken;
    if (disk_fault_ != storage::Fault::kNone) return disk_fault_;
    if (is_read_only_) return storage::Fault::kReadOnly;
    return room_ == 0 ? storage::Fault::kFull : wrapped_.fault();
  }

 private:
  class FailingFile : public storage::File {
   public:
    FailingFile(FailingFileSystem& owner, std::unique_ptr<storage::File> wrapped, std::string path)
        : owner_(owner), wrapped_(std::move(wrapped)), path_(std::move(path)) {}

    std::ptrdiff_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
      return owner_.Fails("read") ? -1 : wrapped_->ReadAt(offset, buffer);
    }
    bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
      std::size_t room = owner_.Fails("write") ? bytes.size() / 2 : bytes.size();
      if (Disk* disk = owner_.DiskOf(path_)) {
        if (disk->forgets && offset > 0) return true;
        const auto left = owner_.LeftOn(*disk, path_, wrapped_->Size().value_or(0));
        const auto fits = left < offset ? 0 : std::min<std::uint64_t>(room, left - offset);
        owner_.Refuses(fits < room, storage::Fault::kFull);
        room = static_cast<std::size_t>(fits);
      }
      const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(room, owner_.room_));
      owner_.room_ -= count;
      return wrapped_->WriteAt(offset, bytes.substr(0, count)) && count == bytes.size();
    }
    std::optional<std::uint64_t> Size() override {
      if (owner_.Fails("size")) return std::nullopt;
      const auto size = wrapped_->Size();
      const Disk* disk = owner_.DiskOf(path_);
      return size && disk ? std::optional(*size + disk->told_more) : size;
    }
    bool Flush() override { return !owner_.Fails("flush") && wrapped_->Flush(); }
    // Closes in any case, as the machine does.
    bool Close() override {
      const bool fails = owner_.Fails("close");
      return wrapped_->Close() && !fails;
    }

   private:
    FailingFileSystem& owner_;
    std::unique_ptr<storage::File> wrapped_;
    std::string path_;
  };

  Disk* DiskOf(const std::string& path) {
    const auto found = disks_.find(path.substr(0, path.rfind('/')));
    return found == disks_.end() ? nullptr : &found->second;
  }
  // The length that a file may reach which has `size` bytes now.
  static std::uint64_t LeftOn(const Disk& disk, const std::string& path, std::uint64_t size) {
    std::uint64_t used = 0;
    const auto folder = std::filesystem::path(path).parent_path();
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.is_regular_file()) used += entry.file_size();
    }
    return disk.room < used ? size : disk.room - used + size;
  }
  bool Refuses(bool refuses, storage::Fault fault) {
    disk_fault_ = refuses ? fault : storage::Fault::kNone;
    return refuses;
  }

  bool Fails(const char* call) {
    disk_fault_ = storage::Fault::kNone;
    log_.emplace_back(call);
    failed_ = fails_ && fails_(calls());
    return failed_;
  }

  storage::FileSystem& wrapped_;
  std::function<bool(int)> fails_;
  std::vector<std::string> log_;
  std::map<std::string, Disk> disks_;
  storage::Fault disk_fault_ = storage::Fault::kNone;
  std::uint64_t room_ = std::numeric_limits<std::uint64_t>::max();
  bool is_read_only_ = false;
  bool failed_ = false;
};

}  // namespace tarnwell::testing
