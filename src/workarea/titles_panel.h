#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "parts/save_question.h"
#include "workarea/worksheet_titles.h"

namespace tarnwell::workarea {

// A button's number, its title, and the field for another.
struct TitleRow {
  TitleRow(forms::Container& parent, int number);

  forms::Label label;
  forms::Label current;
  forms::TextField change;
};

// The panel in which the titles of the worksheet buttons are changed.
class TitlesPanel {
 public:
  TitlesPanel(forms::Container& parent, forms::Context& context);

  forms::Panel panel;
  forms::Label help{panel, "Label11",
                    "Additional Company Documents, Forms and or Policies\n"
                    "(Enter one space if you want a blank title)"};
  forms::Label number_heading{panel, "Label12(0)", "Button Number", forms::LabelRole::kHeading};
  forms::Label current_heading{panel, "Label13(0)", "Current Title", forms::LabelRole::kHeading};
  forms::Label change_heading{panel, "Label14(0)", "Change Title To:", forms::LabelRole::kHeading};
  std::vector<std::unique_ptr<TitleRow>> rows;  // of the buttons 1 to 20
  forms::Command save{panel, "SSCommand23(0)", "Save &Changes and Exit"};
  forms::Command exit{panel, "SSCommand23(1)", "&Exit Without Saving Changes"};

  void Open(const WorksheetTitles& titles);
  void Close();
  // Before something takes the panel's place. False when it has to stay.
  bool Settle() { return !panel.visible() || question_.Settle(); }

  // Stores the titles; false when the disk refused, and the user was told.
  std::function<bool(const NewTitles&)> on_save;

 private:
  parts::SaveResult Save();

  parts::SaveQuestion question_;
};

}  // namespace tarnwell::workarea
