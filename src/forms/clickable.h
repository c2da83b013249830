#pragma once

#include <functional>

#include "forms/control.h"

namespace tarnwell::forms {

// A control that a person can click.
class Clickable : public Control {
 public:
  void Click() {
    if (Reachable()) Run(on_click);
  }
  std::function<void()> on_click;

 protected:
  using Control::Control;
};

}  // namespace tarnwell::forms
