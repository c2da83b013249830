#pragma once

#include <algorithm>
#include <functional>
#include <string>

#include "forms/control.h"

namespace tarnwell::forms {

// A picture from anywhere on the machine, in a place where a person makes it larger and moves it
// about.
class PictureView : public Control {
 public:
  static constexpr int kMostSteps = 12;  // nearly fifteen times as large

  using Control::Control;

  // An absolute path (code page 1252); empty for none.
  const std::string& path() const { return path_; }
  // Whole at first.
  void Show(const std::string& path) {
    path_ = path;
    steps_ = 0;
    Changed();
  }

  // How often it is a quarter larger than where it is seen whole; 0 to kMostSteps.
  int steps() const { return steps_; }
  // A person made it larger; with fewer than 0, smaller.
  void Enlarge(int steps) {
    const int next = std::clamp(steps_ + steps, 0, kMostSteps);
    if (!Reachable() || next == steps_) return;
    steps_ = next;
    Changed();
    Run(on_enlarge);
  }

  std::function<void()> on_enlarge;

 private:
  std::string path_;
  int steps_ = 0;
};

}  // namespace tarnwell::forms
