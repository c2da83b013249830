#pragma once

#include <string_view>

#include "forms/command.h"
#include "forms/control_array.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"
#include "parts/main_buttons.h"
#include "print/print_panel.h"
#include "reference/link_tables.h"

namespace tarnwell::reference {

// The screen "Tools and Program Information": supplied texts to be read, copied and printed, links,
// and the way to the contacts, the planner and the calendar.
class ToolsandInfo1 : public parts::MainScreen {
 public:
  explicit ToolsandInfo1(forms::Context& context);

  forms::Panel screen{*this, "SSPanel1"};
  forms::Label title{screen, "Label1", "Tools and Program Information", forms::LabelRole::kTitle};
  forms::Panel side{screen, "SSPanel2"};
  forms::Command disclaimer{side, "SSCommand11(0)", "Disclaimer"};
  forms::Command program_information{side, "SSCommand11(1)", "Program Information"};
  forms::Command contacts{side, "SSCommand11(2)", "Business Contacts Entry Form"};
  forms::Command contact_display{side, "SSCommand11(3)", "Business Contacts Display"};
  forms::Command incident_report{side, "SSCommand11(4)", "Sample Incident Report"};
  forms::Command planner{side, "SSCommand11(5)", "Daily Planner Function"};
  forms::Command calendar{side, "SSCommand11(6)", "Calendar Developer"};

  forms::Panel link_panel{screen, "SSPanel4"};
  forms::Label link_heading{link_panel, "Label2", "Business Related Internet Links",
                            forms::LabelRole::kHeading};
  forms::Label link_note;
  forms::Label link_trouble{link_panel, "Label5"};
  forms::ControlArray<forms::Label, kInternetLinkCount> links{link_panel, "Label4", "",
                                                              forms::LabelRole::kLink};

  forms::Panel text_panel{screen, "SSPanel3"};
  forms::Label text_trouble{text_panel, "Label6"};
  forms::RichTextBox text{text_panel, "RichTextBox1", {.spoken_name = "Information"}};
  forms::Command copy{text_panel, "SSCommand2(0)", "&Copy to Clipboard"};
  forms::Command print_options{text_panel, "SSCommand2(1)", "&Print Options"};

  print::PrintPanel print{
      *this,
      context_,
      {.as_of_caption = {}, .range_caption = "Print Selected Document", .auto_size = false}};

  void Load() override;

  // How much of the panel's height the text has, in hundredths.
  int text_share() const;

 private:
  void ConnectForms();
  void ConnectTexts();
  void ShowLinks();
  void ShowText(forms::Command& button, std::string_view file);
  void CopyText();
  void PrintText();

  LinkTable<InternetLinks> table_;
};

}  // namespace tarnwell::reference
