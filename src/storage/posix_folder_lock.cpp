#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "storage/file_names.h"
#include "storage/folder_lock.h"
#include "storage/posix_fault.h"

namespace tarnwell::storage {

// The lock file itself is left behind: removing it would let a third process lock a new file of the
// name while a second still waits on the old one. A link in its place isn't followed, and a pipe or
// a device isn't waited for.
FolderLock::Attempt FolderLock::TryTake(const std::string& folder) {
  const std::string path = folder + "/" + std::string(file_names::kLock);
  const int descriptor =
      ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666);
  if (descriptor < 0) return {nullptr, false, FaultOf(errno)};
  std::unique_ptr<FolderLock> lock(new FolderLock(descriptor));
  struct stat status;
  if (::fstat(descriptor, &status) != 0) return {nullptr, false, FaultOf(errno)};
  if (!S_ISREG(status.st_mode)) return {nullptr, false, Fault::kNotPlain};
  int result = -1;
  do {
    result = ::flock(descriptor, LOCK_EX | LOCK_NB);
  } while (result != 0 && errno == EINTR);
  if (result == 0) return {std::move(lock), false, Fault::kNone};
  const int error = errno;
  return {nullptr, error == EWOULDBLOCK, FaultOf(error)};
}

FolderLock::~FolderLock() { ::close(descriptor_); }

}  // namespace tarnwell::storage
