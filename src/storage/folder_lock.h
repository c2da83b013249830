#pragma once

#include <memory>
#include <string>

namespace tarnwell::storage {

// Held by the one process that uses a folder. It stands on an open descriptor, so it ends with the
// process however that ends.
class FolderLock {
 public:
  // Empty when another process holds the folder, or when the lock file can't be made there.
  static std::unique_ptr<FolderLock> TryTake(const std::string& folder);

  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  explicit FolderLock(int descriptor) : descriptor_(descriptor) {}
  int descriptor_;
};

}  // namespace tarnwell::storage
