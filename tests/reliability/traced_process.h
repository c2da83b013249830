// A child process that is stopped at each of its system calls, and there killed, refused what it
// asked for, or given only a part of it.

#pragma once

#include <cstdint>
#include <functional>
#include <limits>

namespace tarnwell::testing {

struct Disturbance {
  enum class Kind {
    kNone,
    kKill,         // ends instead of any call
    kTear,         // ends behind the first page of a write that spans two
    kRefuse,       // a call about files isn't made and gives `error`
    kRefuseOnward  // nor is any behind it
  };
  Kind kind = Kind::kNone;
  int call = 0;  // from 1, of the calls that this kind of disturbance can meet
  int error = 0;
  // Bytes that all writes together may take. Of the write that asks for more only whole pages are
  // made, and from then on the disk is full, for what lies on it already too.
  std::uint64_t room = std::numeric_limits<std::uint64_t>::max();
};

struct TracedRun {
  int result = 0;             // of the work; kKilled, kCrashed
  int calls = 0;              // that the disturbance could meet
  std::uint64_t written = 0;  // bytes asked to be written
  bool is_met = false;        // the disturbance found its place

  static constexpr int kKilled = -1;
  static constexpr int kCrashed = -2;  // by a signal that nobody sent
};

// Whether processes can be traced here, and their calls refused: not in every container, and
// refused only on x86-64.
bool CanTrace();

// Runs `work` in a child, which then ends without any destructor. Its result is from 0 to 99.
TracedRun RunTraced(const std::function<int()>& work, const Disturbance& disturbance);

}  // namespace tarnwell::testing
