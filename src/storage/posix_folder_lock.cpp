#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "storage/file_names.h"
#include "storage/folder_lock.h"

namespace tarnwell::storage {

// The lock file itself is left behind: removing it would let a third process lock a new file of the
// name while a second still waits on the old one.
std::unique_ptr<FolderLock> FolderLock::TryTake(const std::string& folder) {
  const std::string path = folder + "/" + std::string(file_names::kLock);
  const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (descriptor < 0) return nullptr;
  int result = -1;
  do {
    result = ::flock(descriptor, LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result != 0) {
    ::close(descriptor);
    return nullptr;
  }
  return std::unique_ptr<FolderLock>(new FolderLock(descriptor));
}

FolderLock::~FolderLock() { ::close(descriptor_); }

}  // namespace tarnwell::storage
