#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/command.h"
#include "forms/panel.h"
#include "workarea/areas.h"

namespace tarnwell::workarea {

// The buttons `SSCommand11` of the two main areas.
class AreaButtonColumn {
 public:
  explicit AreaButtonColumn(forms::Container& parent);

  forms::Panel panel;
  std::vector<std::unique_ptr<forms::Command>> buttons;  // in the order of AreaButtons()

  // Shows the buttons of a main area.
  void Show(parts::MainArea main_area);
  // Draws the button of the area flat in the selected colour, and raises the others.
  void Paint(Area area);
  static Area FirstOf(parts::MainArea main_area);

  std::function<void(Area)> on_press;
};

}  // namespace tarnwell::workarea
