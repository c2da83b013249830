// The Calendar Developer: a month's sheet, the ten lines of the day picked, and the sheet as it is
// printed.

#pragma once

#include <optional>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/control_array.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/page_preview.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "parts/color_choice.h"
#include "parts/save_question.h"
#include "planner/month_sheet.h"
#include "planner/sheet_import.h"
#include "planner/sheet_page.h"

namespace tarnwell::planner {

class Calendar : public forms::Form {
 public:
  explicit Calendar(forms::Context& context);

  forms::Panel page{*this, "SSPanel1"};
  forms::DatePicker picker{page, "MonthView1", "Day"};
  forms::Label import_label{page, "Label2", "Import Data from Other Functions"};
  forms::ComboBox imports{page, "Combo1", "Import Data from Other Functions"};
  forms::Panel numbers_frame{page, "Frame1", "Calendar Numbers"};
  forms::OptionGroup numbers{numbers_frame, "SSOption1", {"Left", "Right"}};
  forms::Panel sort_frame{page, "Frame2", "Sort Time"};
  forms::OptionGroup sort_time{sort_frame, "SSOption2", {"First", "Last"}};
  forms::Panel display_frame{page, "SSFrame80", "Display Options"};
  forms::OptionGroup guide_lines{
      display_frame, "SSOption82", {"Do Not Display Guide Lines", "Display Guide Lines"}};
  forms::Label day_caption{page, "Label1", {}, forms::LabelRole::kHeading};
  forms::ControlArray<forms::TextField, kLinesPerDay> lines{page, "Text1"};
  forms::Command enter_and_save{page, "Command4", "&Enter Data on Calendar && Save"};
  forms::Command save{page, "Command2", "&Save"};
  forms::Command font{page, "Command3", "Data &Font"};
  forms::Command print{page, "cmdPrint", "&Print"};
  forms::Command exit{page, "Command1", "E&xit", {.cancel = true}};
  forms::PagePreview preview{page, "VSPrinter1", "Calendar"};
  forms::Command zoom{page, "SSCommand1", "Enlarge"};
  forms::Command auto_size{page, "SSCommand2", "Auto Size"};
  parts::ColorChoice colors;

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 private:
  void ConnectControls();
  void BuildMenus();
  void EnableCommands(bool enabled);

  void PickDay();
  void LoadMonth(text::Date day);
  void ShowDay(text::Date day);
  void ShowImports();
  void Typed();
  void SetChanges(bool typed, bool in_sheet);
  // The sheet with the lines on the screen.
  MonthSheet Written();
  void Redraw();

  // A failure is told, and everything stays as it was.
  parts::SaveResult Save();
  void DeleteMonth();
  void ChooseFont();
  void ChooseSetup();
  void Copy();
  void ToggleZoom();
  void ChooseGuideLines(int option);
  void StoreSortTime(int option);

  void Import();
  void ImportPlanner(bool month, bool with_times);
  // Empty when the planner can't be read, which is told.
  std::optional<Imported> ImportDays(MonthSheet& sheet, bool month, const PlannerImport& how);
  void ImportToDo();
  void Take(MonthSheet sheet);

  SheetPage sheet_page_;
  parts::SaveQuestion question_;
  forms::PageSetup setup_;
  MonthSheet sheet_;
  text::Date loaded_{};      // the day on the screen; the picker may have moved on already
  bool is_readable_ = true;  // its month is
  bool is_typed_ = false;    // lines on the screen differ from the sheet
  bool is_changed_ = false;  // the sheet differs from its file
};

}  // namespace tarnwell::planner
