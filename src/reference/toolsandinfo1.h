#pragma once

#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "parts/main_buttons.h"

namespace tarnwell::reference {

// The screen "Tools and Program Information": the way to the contacts, the planner and the
// calendar.
class ToolsandInfo1 : public parts::MainScreen {
 public:
  explicit ToolsandInfo1(forms::Context& context);

  forms::Label title{*this, "Label1", "Tools and Program Information", forms::LabelRole::kTitle};
  forms::Panel side{*this, "SSPanel2"};
  forms::Command contacts{side, "SSCommand11(2)", "Business Contacts Entry Form"};
  forms::Command contact_display{side, "SSCommand11(3)", "Business Contacts Display"};
  forms::Command planner{side, "SSCommand11(5)", "Daily Planner Function"};
  forms::Command calendar{side, "SSCommand11(6)", "Calendar Developer"};
};

}  // namespace tarnwell::reference
