#include "planner/zcalandar1.h"

#include <gtest/gtest.h>

#include "forms/form_names.h"
#include "planner/day_store.h"
#include "planner/planner_rig.h"
#include "settings/planner_settings.h"
#include "storage/record_file.h"
#include "storage/sequential_file.h"

namespace tarnwell::planner {
namespace {

using forms::Answer;
using text::MakeDate;

constexpr const char* kSavedTitle = "Save File Command";
constexpr const char* kSavedText = "Entries Have Been Time Sorted and File Saved.";

class Zcalandar1Test : public testing::PlannerTest {
 protected:
  void Type(int row, std::string_view time, std::string_view entry) {
    form().times[static_cast<std::size_t>(row)].Type(time);
    form().entries[static_cast<std::size_t>(row)].Type(entry);
  }
  void ExpectSaved() { rig.dialogs.ExpectNote(kSavedTitle, kSavedText); }
  void SaveRow(text::Date date, int row, const DayRow& content) {
    DayRows rows = ReadDay(rig.folder, date)->rows;
    rows[static_cast<std::size_t>(row)] = content;
    ASSERT_TRUE(WriteDay(rig.folder, date, rows));
  }

  const text::Date today = MakeDate(2026, 3, 9);
  const text::Date tomorrow = MakeDate(2026, 3, 10);
};

TEST_F(Zcalandar1Test, OpensOnTodayWithTheTimesToChooseFrom) {
  EXPECT_EQ(form().picker.date(), today);
  EXPECT_EQ(form().date_caption.caption(), "March 09, 2026 - Mon");
  EXPECT_EQ(form().clock.caption(), "2:05 PM");
  const auto& times = form().time_picker.items();
  ASSERT_EQ(times.size(), 33u);
  EXPECT_EQ(times.front(), "6:00 AM");
  EXPECT_EQ(times[12], "12:00 PM");
  EXPECT_EQ(times.back(), "10:00 PM");
  EXPECT_TRUE(form().save.enabled());
  EXPECT_FALSE(form().clear_entries.enabled());
  EXPECT_FALSE(Enabled("mOClr"));
}

TEST_F(Zcalandar1Test, ASavedDayIsSortedOnTheScreenAndOnTheDisk) {
  Type(0, "1:00 PM", "Bank");
  Type(1, "9:30 AM", "Dentist");
  ExpectSaved();
  form().save.Click();
  EXPECT_EQ(form().times[0].text(), "9:30 AM");
  EXPECT_EQ(form().entries[1].text(), "Bank");
  const auto stored = ReadDay(rig.folder, today);
  ASSERT_TRUE(stored && stored->saved);
  EXPECT_EQ(stored->rows[0], (DayRow{"9:30 AM", "Dentist"}));
  form().exit.Click();  // nothing is unsaved, so nothing is asked
  EXPECT_EQ(rig.top(), "Startfrm");
}

TEST_F(Zcalandar1Test, TheMenusKeysSaveAndPrintTheDay) {
  Type(0, "9:30 AM", "Dentist");
  EXPECT_TRUE(form().unsaved());
  ExpectSaved();
  EXPECT_TRUE(form().PressKey("Ctrl+S"));
  EXPECT_TRUE(ReadDay(rig.folder, today)->saved);
  EXPECT_FALSE(form().unsaved());
  EXPECT_TRUE(form().PressKey("Ctrl+P"));
  EXPECT_TRUE(form().pages.print.panel.visible());
  EXPECT_FALSE(form().PressKey("Ctrl+S"));  // the day is covered
}

TEST_F(Zcalandar1Test, SavingNothingAsksFirst) {
  const forms::MessageBox box{"Save", "There are currently No Entries to Save!\nSave anyway?",
                              forms::Icon::kQuestion, forms::Buttons::kYesNo, 2};
  rig.dialogs.Expect(box, Answer::kNo);
  form().save.Click();
  EXPECT_FALSE(ReadDay(rig.folder, today)->saved);
  rig.dialogs.Expect(box, Answer::kYes);
  ExpectSaved();
  form().save.Click();
  EXPECT_TRUE(ReadDay(rig.folder, today)->saved);
  EXPECT_TRUE(form().clear_entries.enabled());
}

TEST_F(Zcalandar1Test, ADateChangeOffersToSaveTheDayThatIsLeft) {
  const std::string question = "Save changes/entries before next action?";
  Type(0, "", "Kept");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kYes);
  ExpectSaved();
  form().picker.SelectDay(tomorrow);
  EXPECT_EQ(ReadDay(rig.folder, today)->rows[0].entry, "Kept");
  EXPECT_FALSE(ReadDay(rig.folder, tomorrow)->saved);
  EXPECT_EQ(form().entries[0].text(), "");

  Type(0, "", "Dropped");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kNo);
  form().picker.SelectDay(today);
  EXPECT_EQ(form().entries[0].text(), "Kept");
  EXPECT_FALSE(ReadDay(rig.folder, tomorrow)->saved);

  Type(1, "", "Typed");
  form().picker.SelectDay(today);  // the day on screen: nothing at all happens
  EXPECT_EQ(form().entries[1].text(), "Typed");
}

TEST_F(Zcalandar1Test, LeavingWithChangesAsks) {
  const std::string question = "Save changes/entries before exiting?";
  Type(0, "", "Call");
  rig.dialogs.ExpectYesNoCancel("Daily Planner", question, Answer::kCancel);
  form().exit.Click();
  ASSERT_EQ(rig.top(), "Zcalandar1");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kYes);
  ExpectSaved();
  rig.CloseWindow();
  EXPECT_EQ(rig.top(), "Startfrm");
  EXPECT_EQ(ReadDay(rig.folder, today)->rows[0].entry, "Call");
}

TEST_F(Zcalandar1Test, EnterWalksTheRowsAndTheRowInHandIsMarked) {
  form().times[0].PressEnter();
  EXPECT_EQ(form().focus(), &form().entries[0]);
  form().entries[0].PressEnter();
  EXPECT_EQ(form().focus(), &form().times[1]);
  EXPECT_TRUE(form().times[1].marked() && form().entries[1].marked());
  EXPECT_FALSE(form().times[0].marked());
  form().entries[13].PressEnter();
  EXPECT_EQ(form().focus(), &form().times[0]);
}

TEST_F(Zcalandar1Test, APickedTimeGoesToTheRowInHand) {
  form().times[4].Focus();
  form().time_picker.Pick(7);
  EXPECT_EQ(form().times[4].text(), "9:30 AM");
  EXPECT_EQ(form().focus(), &form().entries[4]);
  rig.dialogs.ExpectYesNoCancel("Daily Planner", "Save changes/entries before exiting?",
                                Answer::kNo);
  form().exit.Click();
}

TEST_F(Zcalandar1Test, TypedTextIsCutAtTheScreensLimits) {
  Type(0, "10:30 AMXX", std::string(60, 'e'));
  EXPECT_EQ(form().times[0].text(), "10:30 AM");
  EXPECT_EQ(form().entries[0].text(), std::string(45, 'e'));
}

TEST_F(Zcalandar1Test, ClearEntriesBlanksTheScreenOnly) {
  SaveRow(today, 0, {"9:00 AM", "Kept"});
  Open();
  const forms::MessageBox question{"Clear Entries", "Clear all Entries for March 09, 2026 - Mon?",
                                   forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2};
  for (Answer answer : {Answer::kNo, Answer::kCancel}) {
    rig.dialogs.Expect(question, answer);
    form().clear_entries.Click();
    EXPECT_EQ(form().entries[0].text(), "Kept");
  }
  rig.dialogs.Expect(question, Answer::kYes);
  form().clear_entries.Click();
  EXPECT_EQ(form().entries[0].text(), "");
  EXPECT_EQ(ReadDay(rig.folder, today)->rows[0].entry, "Kept");
  rig.dialogs.ExpectNote("Clear Entries", "There are currently No Entries to Clear!");
  rig.ClickMenu("mOClr");
}

TEST_F(Zcalandar1Test, ADayIsCopiedOntoTheFreeRowsOfAnother) {
  rig.dialogs.ExpectNote("Copy all entries for pasteing to another day",
                         "No Entries to Copy have been found!");
  rig.ClickMenu("mECopyDay");
  EXPECT_FALSE(Enabled("mEPaste"));

  SaveRow(today, 0, {"8:00 AM", "A"});
  SaveRow(today, 2, {"", "C"});
  SaveRow(tomorrow, 0, {"7:00 AM", "X"});
  SaveRow(tomorrow, 1, {"", "Y"});
  Open();
  rig.ClickMenu("mECopyDay");
  form().picker.SelectDay(tomorrow);
  rig.ClickMenu("mEPaste");
  EXPECT_EQ(form().entries[0].text(), "X");
  EXPECT_EQ(form().entries[2].text(), "A");
  EXPECT_EQ(form().entries[3].text(), "");  // the copied day's blank row used it up
  EXPECT_EQ(form().entries[4].text(), "C");
  rig.dialogs.ExpectYesNoCancel("Daily Planner", "Save changes/entries before exiting?",
                                Answer::kNo);
  form().exit.Click();
}

TEST_F(Zcalandar1Test, CalendarOptionsApplyAtOnceAndAreStoredOnClose) {
  rig.ClickMenu("mOCal");
  auto& options = form().calendar_options;
  EXPECT_FALSE(form().day.visible());
  options.months.Pick(1);
  options.week_numbers.Pick(1);
  options.weekday.Pick(1);
  options.mark_today.Pick(1);
  EXPECT_EQ(form().picker.look(),
            (forms::DatePickerLook{
                .months = 2, .week_numbers = false, .first_weekday = 1, .mark_today = true}));
  options.close.Click();
  EXPECT_TRUE(form().day.visible());
  const std::string expected = std::string("\1\0", 2) + std::string(18, '\0') +
                               std::string("\1\0", 2) + std::string(18, '\0') +
                               std::string("\2\0", 2) + std::string(18, '\0') +
                               std::string("\1\0", 2);
  EXPECT_EQ(rig.folder.ReadWhole("CalOpt.fil")->substr(13 * 20), expected);
  Open();
  EXPECT_EQ(form().picker.look().months, 2);
  EXPECT_EQ(form().calendar_options.weekday.chosen(), 1);
}

TEST_F(Zcalandar1Test, SortTimeIsStoredTheMomentItChanges) {
  form().sort_time.Pick(1);
  EXPECT_EQ(settings::ReadSortTime(rig.folder), 1);
  EXPECT_EQ(storage::RecordFile(rig.folder, "GColor3.Fil", 20).GetText(58), "1");
  Type(0, "9:00 AM", "Timed");
  Type(1, "", "Untimed");
  ExpectSaved();
  form().save.Click();
  EXPECT_EQ(form().entries[0].text(), "Untimed");
}

TEST_F(Zcalandar1Test, ToDoItemsFromTheDayOnScreenOnAreImportedOnce) {
  storage::SequentialWriter list;
  const char* values[] = {
      "Old",
      "Sun - Mar 8, 26",
      "",
      "",
      "",  // before the day on screen
      "Passed over",
      "Tue - Mar 10, 26",
      "",
      "",
      "",  // 2nd row: not realigned
      "Passed over too",
      "Tue - Mar 10, 26",
      "",
      "",
      "",  // 3rd row
      "Taxes",
      "Thu - Mar 12, 26",
      "",
      "",
      "",  // 4th row
  };
  for (const char* value : values) list.WriteText(value);
  ASSERT_TRUE(list.Save(rig.folder, "TODOActv.FIL"));
  for (int round = 0; round < 2; ++round) {
    rig.dialogs.ExpectYesNo("To Do List Import Function", "Do you want to Import To Do List Items?",
                            Answer::kYes);
    rig.ClickMenu("mToDo");
  }
  const auto day = ReadDay(rig.folder, MakeDate(2026, 3, 12));
  EXPECT_EQ(day->rows[0], (DayRow{"", "Taxes"}));
  EXPECT_EQ(day->rows[1], (DayRow{}));
  EXPECT_FALSE(ReadDay(rig.folder, MakeDate(2026, 3, 8))->saved);
  EXPECT_FALSE(ReadDay(rig.folder, tomorrow)->saved);
  EXPECT_EQ(form().picker.date(), today);
  EXPECT_FALSE(form().todo_import.panel.visible());
}

TEST_F(Zcalandar1Test, NothingElseWorksWhileAnImportRunsBehindWhichTheDayOnShowHasItsItems) {
  storage::SequentialWriter list;
  for (const char* value : {"Taxes", "Tue - Mar 10, 26", ""}) list.WriteText(value);
  form().picker.SelectDay(tomorrow);
  ASSERT_TRUE(list.Save(rig.folder, "TODOActv.FIL"));
  rig.dialogs.ExpectYesNo("To Do List Import Function", "Do you want to Import To Do List Items?",
                          Answer::kYes);
  int tried = 0;
  rig.loop.on_yield = [&] {
    ++tried;
    EXPECT_FALSE(rig.CloseWindow());
    rig.ClickMenu("mOE");
    form().exit.Click();
    form().picker.SelectDay(today);
    EXPECT_EQ(rig.top(), "Zcalandar1");
  };
  rig.ClickMenu("mToDo");
  EXPECT_EQ(tried, 1);
  EXPECT_EQ(form().picker.date(), tomorrow);
  EXPECT_EQ(form().entries[0].text(), "Taxes");
}

TEST_F(Zcalandar1Test, AnEmptyToDoListIsReported) {
  rig.dialogs.ExpectYesNo("To Do List Import Function", "Do you want to Import To Do List Items?",
                          Answer::kYes);
  rig.dialogs.ExpectNote("Import To Do List Items",
                         "No To Do List Items to Import have been found!");
  rig.ClickMenu("mToDo");
}

// Rows stand on the screen unsaved, and each box says so as long as they do.
TEST_F(Zcalandar1Test, RowsOnShowStayUnsavedUntilTheyAreSavedOrReplaced) {
  const std::string question = "Save changes/entries before next action?";
  Type(0, "", "Precious");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kNo);
  form().recurrence_buttons[0].Click();
  EXPECT_EQ(form().entries[0].text(), "Precious");
  rig.dialogs.ExpectYesNo("To Do List Import Function", "Do you want to Import To Do List Items?",
                          Answer::kYes);
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kNo);
  rig.dialogs.ExpectNote("Import To Do List Items",
                         "No To Do List Items to Import have been found!");
  rig.ClickMenu("mToDo");
  EXPECT_EQ(form().entries[0].text(), "Precious");
  form().print_options.Click();
  form().pages.print.close.Click();
  rig.dialogs.ExpectYesNoCancel("Daily Planner", "Save changes/entries before exiting?",
                                Answer::kCancel);
  form().exit.Click();
  EXPECT_EQ(form().entries[0].text(), "Precious");
}

TEST_F(Zcalandar1Test, TheTimesPickerStandsOnTheRowsOwnTime) {
  Type(0, "2:00 pm", "Bank");
  EXPECT_EQ(form().time_picker.text(), "2:00 PM");
  Type(1, "2:10 PM", "Call");
  form().times[1].Focus();
  EXPECT_EQ(form().time_picker.selected(), forms::ComboBox::kNone);
  form().entries[0].Focus();
  EXPECT_EQ(form().time_picker.text(), "2:00 PM");
}

TEST_F(Zcalandar1Test, ArrowsMoveBetweenTheRows) {
  form().entries[0].Focus();
  form().entries[0].PressArrow(-1);
  EXPECT_EQ(form().focus(), &form().entries[0]);
  form().entries[0].PressArrow(1);
  EXPECT_EQ(form().focus(), &form().entries[1]);
  form().times[13].PressArrow(1);
  EXPECT_EQ(form().row_in_hand(), 1);
}

}  // namespace
}  // namespace tarnwell::planner
