// A small form of every kind of control, for tests of what shows forms.

#pragma once

#include <memory>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/navigator.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "forms/timer.h"
#include "support/form_rig.h"

namespace tarnwell::testing {

class SampleForm : public forms::Form {
 public:
  explicit SampleForm(forms::Context& context, std::string_view name = "Sample1")
      : Form(context, name, "Sample") {
    leave.on_click = [this] { context_.navigator.Unload(*this); };
    close_entry = &menus().AddSubmenu("mO", "&Options").AddEntry("mOE", "E&xit", leave.on_click);
    SetPopupMenu(*menus().items().front());
  }

  forms::Panel panel{*this, "SSPanel1"};
  forms::TextField city{panel, "Text1", {.max_length = 8, .spoken_name = "City"}};
  forms::TextField street{panel, "Text2", {.spoken_name = "Street"}};
  forms::Label heading{panel, "Label1", "Address"};
  forms::CheckBox active{panel, "Check1", "&Active"};
  forms::OptionGroup size{panel, "Option1", {"&Small", "&Large"}};
  forms::ComboBox country{panel, "Combo1", "Country"};
  forms::DatePicker day{panel, "MonthView1", "Day"};
  forms::Command save{panel, "Command1", "Sa&ve"};
  forms::Command leave{panel, "Command2", "&Leave", {.tool_tip = "  Leave  ", .cancel = true}};
  forms::Timer timer{*this, "Timer1", std::chrono::milliseconds(5)};
  forms::MenuItem* close_entry = nullptr;

  bool QueryUnload(forms::UnloadCause) override { return !stays; }
  void Unload() override { ++unloads; }

  bool stays = false;
  static inline int unloads = 0;
};

struct SampleWorld : FormWorld {
  SampleWorld() {
    navigator.Register("Sample1",
                       [](forms::Context& world) { return std::make_unique<SampleForm>(world); });
  }
  SampleForm& Show() {
    navigator.Show("Sample1");
    return dynamic_cast<SampleForm&>(*navigator.Find("Sample1"));
  }
};

}  // namespace tarnwell::testing
