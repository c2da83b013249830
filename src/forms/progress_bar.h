#pragma once

#include <algorithm>
#include <string_view>

#include "forms/control.h"

namespace tarnwell::forms {

class ProgressBar : public Control {
 public:
  ProgressBar(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  int maximum() const { return maximum_; }
  int value() const { return value_; }

  // Back to 0, with a new maximum of at least 1.
  void Start(int maximum) {
    maximum_ = std::max(maximum, 1);
    value_ = 0;
    Changed();
  }
  // A value outside 0 to maximum is left out.
  void SetValue(int value) {
    if (value < 0 || value > maximum_ || value == value_) return;
    value_ = value;
    Changed();
  }

 private:
  int maximum_ = 1;
  int value_ = 0;
};

}  // namespace tarnwell::forms
