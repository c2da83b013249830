#pragma once

#include <atomic>
#include <thread>

namespace tarnwell::testing {

// Ends the process, with a core to look at, when nobody has renewed it for a minute: the thread of
// the windows hangs.
class Patience {
 public:
  Patience() : watch_([this] { Watch(); }) {}
  ~Patience();
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;

  void Renew() { left_ = kTicks; }

 private:
  static constexpr int kTicks = 300;

  void Watch();

  std::atomic<int> left_{kTicks};
  std::atomic<bool> done_{false};
  std::thread watch_;
};

}  // namespace tarnwell::testing
