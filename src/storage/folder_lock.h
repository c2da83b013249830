#pragma once

#include <memory>
#include <string>

#include "storage/fault.h"

namespace tarnwell::storage {

// Held by the one process that uses a folder. It stands on an open descriptor, so it ends with the
// process however that ends.
class FolderLock {
 public:
  struct Attempt {
    std::unique_ptr<FolderLock> lock;
    bool is_held = false;        // by another process
    Fault fault = Fault::kNone;  // why the lock file can't be made or used, if it isn't held
  };
  static Attempt TryTake(const std::string& folder);

  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  explicit FolderLock(int descriptor) : descriptor_(descriptor) {}
  int descriptor_;
};

}  // namespace tarnwell::storage
