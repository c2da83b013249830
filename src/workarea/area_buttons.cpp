#include "workarea/area_buttons.h"

#include <string>

namespace tarnwell::workarea {

AreaButtonColumn::AreaButtonColumn(forms::Container& parent) : panel(parent, "SSPanel1") {
  for (const AreaButton& area : AreaButtons()) {
    buttons.push_back(std::make_unique<forms::Command>(
        panel, "SSCommand11(" + std::to_string(area.area) + ")", area.caption,
        forms::CommandStyle{.tool_tip = area.tool_tip}));
    buttons.back()->on_click = [this, which = area.area] {
      if (on_press) on_press(which);
    };
  }
}

void AreaButtonColumn::Show(parts::MainArea main_area) {
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->SetVisible(AreaButtons()[i].under == main_area);
  }
}

void AreaButtonColumn::Paint(Area area) {
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->SetSelected(AreaButtons()[i].area == area);
  }
}

Area AreaButtonColumn::FirstOf(parts::MainArea main_area) {
  for (const AreaButton& area : AreaButtons()) {
    if (area.under == main_area) return area.area;
  }
  return kNoArea;
}

}  // namespace tarnwell::workarea
