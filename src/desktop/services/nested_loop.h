#pragma once

namespace tarnwell::desktop {

// Lives while a handler of a form waits and lets events happen meanwhile. Only services that a
// handler calls do that, so where none lives and the event loop is in charge, no handler is on the
// stack: the moment at which forms and views may be freed.
class NestedLoop {
 public:
  NestedLoop() { ++depth_; }
  ~NestedLoop() { --depth_; }
  NestedLoop(const NestedLoop&) = delete;
  NestedLoop& operator=(const NestedLoop&) = delete;

  static bool Any() { return depth_ > 0; }
  static int depth() { return depth_; }

 private:
  static inline int depth_ = 0;  // there is one thread
};

}  // namespace tarnwell::desktop
