// Why an operation on the disk didn't work.

#pragma once

namespace tarnwell::storage {

enum class Fault {
  kNone,
  kMissing,       // there is no such file: for a reader the empty value, not an error
  kNotPermitted,  // it may not be read or changed
  kReadOnly,      // the file system takes no changes
  kFull,          // no room left, or the user's share is used up
  kGone,          // the folder or its disk isn't there any more
  kTooLarge,      // larger than what is read as a whole
  kNotPlain,      // a link, a folder, a pipe: nothing that the program made
  kInUse,         // another program holds it, or too many files are open
  kNoAnswer,      // the disk or the network keeps silent
  kBroken,        // the disk failed
};

// What became of an operation: true when it worked.
class Outcome {
 public:
  Outcome() = default;
  Outcome(Fault fault) : fault_(fault) {}  // NOLINT: a fault is an outcome

  explicit operator bool() const { return fault_ == Fault::kNone; }
  Fault fault() const { return fault_; }

 private:
  Fault fault_ = Fault::kNone;
};

}  // namespace tarnwell::storage
