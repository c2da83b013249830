// Bytes from one file to another, in pieces between which the window lives.

#pragma once

#include <cstdint>

#include "backup/attendant.h"
#include "storage/file_system.h"

namespace tarnwell::backup {

enum class Step {
  kDone,
  kEnd,        // there is nothing more to be done
  kBadSource,  // it can't be read to its end
  kRefused,    // the disk takes no more
  kDiffers,    // what was written doesn't read back
  kStopped,    // by the person
};

// A range of a file's bytes.
struct Range {
  storage::File& file;
  std::uint64_t offset = 0;
};

Step CopyBytes(const Range& from, const Range& to, std::uint64_t size, Attendant& attendant);

// kDone where both hold the same.
Step CompareBytes(const Range& written, const Range& source, std::uint64_t size,
                  Attendant& attendant);

// All of `from` to the empty file `to`, brought to the disk and closed. A file that says another
// length than it has is a bad source.
Step CopyFile(storage::File& from, storage::File& to, Attendant& attendant);
// Whether `written` holds what `source` does, and no more.
Step CompareFiles(storage::File& written, storage::File& source, Attendant& attendant);

}  // namespace tarnwell::backup
