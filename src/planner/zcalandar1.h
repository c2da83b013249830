// The Daily Planner: a date picker and the 14 rows of the day picked.

#pragma once

#include <optional>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/control_array.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "forms/text_field.h"
#include "forms/timer.h"
#include "planner/calendar_options_panel.h"
#include "planner/day_rows.h"

namespace tarnwell::planner {

class Zcalandar1 : public forms::Form {
 public:
  explicit Zcalandar1(forms::Context& context);

  forms::DatePicker picker{*this, "MonthView1", "Day"};
  forms::Label clock{*this, "Label1"};
  forms::Timer timer{*this, "Timer1", std::chrono::seconds(1)};

  forms::Panel day{*this, "SSPanel1"};
  forms::Label date_caption{day, "SSPanel4", {}, forms::LabelRole::kHeading};
  forms::Label time_heading{day, "Label2", "Time"};
  forms::Label entry_heading{day, "Label3", "Appointment/Activity"};
  forms::ControlArray<forms::TextField, kRowsPerDay> times{day, "Text1",
                                                           forms::TextFieldStyle{.max_length = 8}};
  forms::ControlArray<forms::TextField, kRowsPerDay> entries{
      day, "Text2", forms::TextFieldStyle{.max_length = 45}};
  forms::ComboBox time_picker{day, "Combo1", "Times to choose from"};
  forms::Panel sort_frame{day, "Frame7", "Sort Time:"};
  forms::OptionGroup sort_time{sort_frame, "Option7", {"First", "Last"}};
  forms::Command save{day, "Command1", "&Save"};
  forms::Command clear_entries{day, "Command3", "Clear &Entries"};
  forms::Command exit{day, "Command2", "E&xit"};

  CalendarOptionsPanel calendar_options;

  forms::Panel import_panel{*this, "SSPanel5", " Importing To Do List Items:"};
  forms::ProgressBar import_progress{import_panel, "ProgressBar2", "Items imported"};

  // The row at which the time picker stands, 0 to 13.
  int row_in_hand() const { return row_in_hand_; }

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;

 private:
  enum class SaveResult { kSaved, kDeclined, kFailed };

  void BuildMenus();
  void BuildRows();
  void TakeRowInHand(int row);
  void Typed(int row);
  void RefuseRowWithoutDay();
  void PickTime();

  void PickDay();
  bool LeaveLoadedDay();
  void ShowDay(std::optional<text::Date> date);
  void ShowRows(const DayRows& rows);
  void MarkChanged();
  void EnableCommands(bool day_commands, bool clear_commands);
  DayRows Rows();

  void Save();
  SaveResult SaveUnder(text::Date date);
  void Exit();
  void ClearEntries();
  void CopyDay();
  void PasteCopiedDay();

  void OpenCalendarOptions();
  void CloseCalendarOptions();
  void ImportToDo();
  void ImportInto(text::Date date, const std::string& entry);

  forms::MenuItem* save_entry_ = nullptr;
  forms::MenuItem* clear_entry_ = nullptr;
  forms::MenuItem* paste_entry_ = nullptr;
  bool unsaved_ = false;
  std::optional<text::Date> loaded_;  // the day on screen; the picker may have moved on already
  DayRows copied_;
  int row_in_hand_ = 0;
};

}  // namespace tarnwell::planner
