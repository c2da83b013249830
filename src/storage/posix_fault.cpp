#include "storage/posix_fault.h"

#include <cerrno>

namespace tarnwell::storage {

Fault FaultOf(int error) {
  switch (error) {
    case ENOENT:
      return Fault::kMissing;
    case EACCES:
    case EPERM:
    case EBADF:  // opened for reading alone
      return Fault::kNotPermitted;
    case EROFS:
      return Fault::kReadOnly;
    case ENOSPC:
    case EDQUOT:
      return Fault::kFull;
    case ENODEV:
    case ENOTDIR:
    case ESTALE:
    case ENOTCONN:
      return Fault::kGone;
    case EFBIG:
      return Fault::kTooLarge;
    case ELOOP:
    case EISDIR:
    case ENXIO:
      return Fault::kNotPlain;
    case EMFILE:
    case ENFILE:
    case EBUSY:
    case ETXTBSY:
      return Fault::kInUse;
    default:
      return Fault::kBroken;
  }
}

}  // namespace tarnwell::storage
