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
#include "forms/text_field.h"
#include "forms/timer.h"
#include "parts/color_choice.h"
#include "parts/grid_background_panel.h"
#include "parts/save_question.h"
#include "planner/calendar_options_panel.h"
#include "planner/day_rows.h"
#include "planner/planner_pages.h"
#include "planner/recurrence_panel.h"
#include "planner/todo_import_panel.h"

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
  forms::ControlArray<forms::Command, kRowsPerDay> recurrence_buttons{
      day, "Option2", "", forms::CommandStyle{.tool_tip = " Recurrence Option "}};
  forms::ComboBox time_picker{day, "Combo1", "Times to choose from"};
  forms::Panel sort_frame{day, "Frame7", "Sort Time:"};
  forms::OptionGroup sort_time{sort_frame, "Option7", {"First", "Last"}};
  forms::Command save{day, "Command1", "&Save"};
  forms::Command clear_entries{day, "Command3", "Clear &Entries"};
  forms::Command view_month{day, "Command4", "&View Month"};
  forms::Command print_options{day, "Command7", "&Print Options"};
  forms::Command check_spelling{day, "Command8", "Spelling Chec&k"};
  forms::Command exit{day, "Command2", "E&xit"};

  CalendarOptionsPanel calendar_options;
  RecurrencePanel recurrence;
  PlannerPages pages;
  parts::GridBackgroundPanel background;
  parts::ColorChoice colors;
  ToDoImportPanel todo_import;

  // The row at which the time picker stands, 0 to 13.
  int row_in_hand() const { return row_in_hand_; }

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 private:
  enum class SaveNote { kShown, kNone };  // whether a save is confirmed with a box

  void BuildMenus();
  void BuildRows();
  void TakeRowInHand(int row);
  void ShowTimeOfRow();
  void WalkRows(forms::ControlArray<forms::TextField, kRowsPerDay>& column, std::size_t row,
                int step);
  void Typed(int row);
  void RefuseRowWithoutDay();
  void EnableRows(bool enabled);
  void PickTime();

  void PickDay();
  void ShowDay(std::optional<text::Date> date);
  void ReadAnew();
  int YearOnShow();
  void ShowRows(const DayRows& rows);
  void MarkChanged();
  void EnableCommands(bool day_commands, bool clear_commands);
  void MarkRowsWithoutText();
  DayRows Rows();

  // Of the day on screen. A failure is told, and the rows stay as they were.
  parts::SaveResult Save(SaveNote note = SaveNote::kShown);
  bool LeaveLoadedDay();
  void StoreSortTime(int option);
  void ShowColors();
  void ClearEntries();
  void CopyDay();
  void PasteCopiedDay();

  void CoverRows();
  void OpenRecurrence(int row);
  void CloseRecurrence();
  void ViewMonth();
  void PrintDay();
  void Copy();
  void CheckSpelling();
  void ImportToDo();

  forms::MenuItem* paste_entry_ = nullptr;
  parts::SaveQuestion question_;
  std::optional<text::Date> loaded_;  // the day on screen; the picker may have moved on already
  DayRows copied_;
  int row_in_hand_ = 0;
  int row_of_recurrence_ = 0;
};

}  // namespace tarnwell::planner
