// Files in memory, so that a fuzz target needs no disk.

#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "storage/file_system.h"

namespace tarnwell::fuzz {

class MemoryFileSystem : public storage::FileSystem {
 public:
  // By their paths.
  std::map<std::string, std::shared_ptr<std::string>> contents;

  std::unique_ptr<storage::File> Open(const std::string& path, storage::OpenMode mode) override {
    const bool may_make =
        mode == storage::OpenMode::kCreate || mode == storage::OpenMode::kCreateFresh;
    auto entry = contents.find(path);
    if (entry != contents.end() && mode == storage::OpenMode::kCreateFresh) return nullptr;
    if (entry == contents.end()) {
      if (!may_make) return nullptr;
      entry = contents.emplace(path, std::make_shared<std::string>()).first;
    }
    return std::make_unique<MemoryFile>(entry->second);
  }
  bool Exists(const std::string& path) override { return contents.count(path) != 0; }
  bool Rename(const std::string& from, const std::string& to) override {
    const auto entry = contents.find(from);
    if (entry == contents.end()) return false;
    contents[to] = entry->second;
    contents.erase(entry);
    return true;
  }
  bool Remove(const std::string& path) override {
    contents.erase(path);
    return true;
  }
  void CopyPermissions(const std::string&, const std::string&) override {}
  bool FlushFolder(const std::string&) override { return true; }
  bool MakeFolder(const std::string&) override { return true; }
  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    std::vector<std::string> names;
    for (const auto& entry : contents) {
      const std::size_t slash = entry.first.find_last_of('/');
      if (entry.first.substr(0, slash) == folder) names.push_back(entry.first.substr(slash + 1));
    }
    return names;
  }
  storage::Fault fault() const override { return storage::Fault::kMissing; }

 private:
  class MemoryFile : public storage::File {
   public:
    explicit MemoryFile(std::shared_ptr<std::string> content) : content_(std::move(content)) {}

    std::ptrdiff_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
      if (offset >= content_->size()) return 0;
      return static_cast<std::ptrdiff_t>(content_->copy(buffer.data(), buffer.size(), offset));
    }
    bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
      if (offset + bytes.size() > kLargest) return false;
      content_->resize(std::max<std::size_t>(content_->size(), offset + bytes.size()), '\0');
      content_->replace(offset, bytes.size(), bytes);
      return true;
    }
    std::optional<std::uint64_t> Size() override { return content_->size(); }
    bool Flush() override { return true; }
    bool Close() override { return true; }

   private:
    static constexpr std::uint64_t kLargest = 16u << 20;

    std::shared_ptr<std::string> content_;
  };
};

}  // namespace tarnwell::fuzz
