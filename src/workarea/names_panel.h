#pragma once

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"

namespace tarnwell::workarea {

// The frame in which a named document is chosen, begun or deleted.
struct NamesPanel {
  explicit NamesPanel(forms::Container& parent) : panel(parent, "SSPanel9") {
    panel.SetVisible(false);
  }

  forms::Panel panel;
  forms::Label title{panel, "Label7", {}, forms::LabelRole::kHeading};
  forms::Label list_heading{panel, "Label8"};
  forms::TextField name{panel, "Text5", {.spoken_name = "Name and Date"}};
  forms::ComboBox list{panel, "Combo3", "Existing Names"};
  forms::Label prompt{panel, "Label9"};
  forms::Command select{panel, "SSCommand24", "Select Existing Report Above"};
  forms::Command new_report{panel, "SSCommand25", "New Report - Insert Template"};
  forms::Command new_blank{panel, "SSCommand26", "New - Blank for Pasting In Report"};
  forms::Command remove{panel, "SSCommand27", "Delete Selected File"};
};

}  // namespace tarnwell::workarea
