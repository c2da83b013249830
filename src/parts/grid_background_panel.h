#pragma once

#include <functional>

#include "forms/command.h"
#include "forms/context.h"
#include "forms/control_array.h"
#include "forms/grid_look.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "settings/grid_backgrounds.h"

namespace tarnwell::parts {

// The panel "Grid Background Selector": one background for all grids of a function. A click on a
// thumbnail only shows it large; the buttons choose, and store the choice.
class GridBackgroundPanel {
 public:
  GridBackgroundPanel(forms::Container& parent, forms::Context& context,
                      settings::GridBackground function);

  forms::Panel panel;
  forms::Label note{panel, "Label90",
                    "(Selected Background will be used by all Grids in this function.)",
                    forms::LabelRole::kNote};
  forms::ControlArray<forms::Picture, settings::kWallpapers> thumbnails{panel, "Image3",
                                                                        std::string_view()};
  forms::Picture preview{panel, "Image4", {}};
  forms::Command exit{panel, "SSCommand90(0)", "&Exit", {.cancel = true}};
  forms::Command use_marked{panel, "SSCommand90(1)", "Use &Above Background"};
  forms::Command use_default{panel, "SSCommand90(2)", "Use &Default Background"};
  forms::Command use_color{panel, "SSCommand90(3)", "&Select Color Background"};

  // Shows the stored background in the grids.
  void Load();
  void Open() { panel.SetVisible(true); }

  // Paints the grids; called with each background that is loaded or chosen.
  std::function<void(const forms::GridLook&)> on_apply;
  std::function<void()> on_close;

 private:
  void Mark(std::size_t index);
  void Exit();
  void UseMarked();
  void UseDefault();
  void UseColor();
  void Take(const settings::StoredColor& choice);
  void Apply();

  forms::Context& context_;
  settings::GridBackground function_;
  settings::StoredColor choice_;
  int marked_ = 0;  // number of the wallpaper whose thumbnail was clicked, 0 for none
};

}  // namespace tarnwell::parts
