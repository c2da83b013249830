#pragma once

#include <chrono>
#include <string_view>

#include "forms/control.h"

namespace tarnwell::forms {

// Ticks while it is enabled and its form is loaded. Never seen.
class Timer : public Control {
 public:
  Timer(Container& parent, std::string_view name, std::chrono::milliseconds interval)
      : Control(parent, name), interval_(interval) {}

  std::chrono::milliseconds interval() const { return interval_; }
  void Tick() {
    if (enabled()) Run(on_tick);
  }
  std::function<void()> on_tick;

 private:
  std::chrono::milliseconds interval_;
};

}  // namespace tarnwell::forms
