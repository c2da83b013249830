#pragma once

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/control_array.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"
#include "forms/text_field.h"
#include "parts/main_buttons.h"
#include "reference/link_tables.h"
#include "reference/site_buttons.h"

namespace tarnwell::reference {

// The screen "Information Advisor": the way to what public web sites say about starting and running
// a company.
class InfoAdv : public parts::MainScreen {
 public:
  explicit InfoAdv(forms::Context& context);

  // What the side buttons show, by their indices.
  enum Side { kGettingStarted, kFederal, kState };
  static constexpr int kSides = 3;

  forms::Label title{*this, "Label1", "Information Advisor", forms::LabelRole::kTitle};
  forms::Panel side{*this, "SSPanel2"};
  forms::ControlArray<forms::Command, kSides> sides{side, "SSCommand11", ""};
  // What is wrong with the supplied file of what is on show.
  forms::Label trouble{*this, "Label4"};

  forms::Panel text_panel{*this, "SSPanel3"};
  forms::RichTextBox text{text_panel, "RichTextBox1", {.spoken_name = "Getting Started"}};

  forms::Panel federal{*this, "SSPanel4", "Federal Government Websites"};
  SiteButtons federal_sites{federal, "SSCommand6", "Label6", kFederalLinkCount};

  forms::Panel states{*this, "SSPanel5"};
  forms::OptionGroup state;
  forms::Panel state_panel{states, "SSPanel6"};
  SiteButtons state_sites{state_panel, "SSCommand5", "Label5", kStatePlaces};

  forms::Panel copy_and_paste{*this, "SSFrame1", "Copy and Paste"};
  forms::Label copy_note;
  forms::TextField address;
  forms::Command display{copy_and_paste, "Command1(0)", "Display Website or PDF"};
  forms::Command clear{copy_and_paste, "Command1(1)", "Clear Entry"};
  forms::Label note;

  void Load() override;

 private:
  void ConnectCommands();
  void Choose(Side shown);
  void ShowFederal();
  void ShowState(std::size_t index);

  LinkTable<FederalLinks> federal_links_;
  LinkTable<StateLinks> state_links_;
};

}  // namespace tarnwell::reference
