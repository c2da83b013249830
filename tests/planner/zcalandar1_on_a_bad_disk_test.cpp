#include <gtest/gtest.h>

#include "forms/form_names.h"
#include "planner/day_store.h"
#include "planner/zcalandar1.h"
#include "settings/planner_settings.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::planner {
namespace {

using forms::Answer;
using text::MakeDate;

constexpr const char* kExit = "Save changes/entries before exiting?";

class Zcalandar1OnABadDiskTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.Start();
    rig.navigator().Show(forms::form_names::kZcalandar1);
  }
  Zcalandar1& form() { return rig.Get<Zcalandar1>("Zcalandar1"); }
  void ExpectNotSaved(const std::string& what) {
    rig.dialogs.ExpectError("Not Saved", what +
                                             " could not be saved: the disk is read-only.\n"
                                             "It is still on the screen.");
  }
  void ExpectQuestion(Answer answer) {
    rig.dialogs.ExpectYesNo("Daily Planner", "Save changes/entries before next action?", answer);
  }

  testing::FailingFileSystem files{storage::RealFileSystem()};
  testing::ProgramRig rig{files};
  const std::string day = "March 09, 2026 - Mon";
};

TEST_F(Zcalandar1OnABadDiskTest, AFailedSaveIsToldAndKeepsTheRowsAsTheyWereTyped) {
  form().times[0].Type("9:00");
  form().entries[0].Type("Precious");
  files.MakeReadOnly();
  ExpectNotSaved(day);
  form().save.Click();
  EXPECT_EQ(form().times[0].text(), "9:00");

  ExpectQuestion(Answer::kYes);
  ExpectNotSaved(day);
  form().recurrence_buttons[0].Click();
  ExpectQuestion(Answer::kYes);
  ExpectNotSaved(day);
  rig.dialogs.ExpectLeaveUnsaved(Answer::kNo);
  form().picker.SelectDay(MakeDate(2026, 3, 10));
  EXPECT_EQ(form().picker.date(), MakeDate(2026, 3, 9));
  ExpectQuestion(Answer::kYes);
  ExpectNotSaved(day);
  rig.dialogs.ExpectLeaveUnsaved(Answer::kNo);
  form().view_month.Click();
  EXPECT_EQ(form().entries[0].text(), "Precious");
  rig.dialogs.ExpectYesNoCancel("Daily Planner", kExit, Answer::kYes);
  ExpectNotSaved(day);
  rig.dialogs.ExpectLeaveUnsaved(Answer::kNo);
  form().exit.Click();
  EXPECT_EQ(form().entries[0].text(), "Precious");

  rig.dialogs.ExpectYesNo("Daily Planner", kExit, Answer::kYes);
  ExpectNotSaved(day);
  rig.dialogs.ExpectLeaveUnsaved(Answer::kYes);
  rig.CloseWindow();
  EXPECT_EQ(rig.top(), "Startfrm");
}

TEST_F(Zcalandar1OnABadDiskTest, SettingsThatCantBeStoredAreTold) {
  files.MakeReadOnly();
  ExpectNotSaved("The Sort Time choice");
  form().sort_time.Pick(1);
  rig.ClickMenu("mOCal");
  form().calendar_options.months.Pick(1);
  ExpectNotSaved("The calendar options");
  rig.dialogs.ExpectLeaveUnsaved(Answer::kNo);
  form().PressEscape();
  EXPECT_TRUE(form().calendar_options.panel.visible());
  ExpectNotSaved("The calendar options");
  rig.dialogs.ExpectLeaveUnsaved(Answer::kYes);
  form().calendar_options.close.Click();
  EXPECT_TRUE(form().day.visible());
  rig.dialogs.ExpectColor(0x800000);
  ExpectNotSaved("The text color");
  rig.ClickMenu("mOTC");
}

TEST_F(Zcalandar1OnABadDiskTest, DaysThatARecurrenceCantChangeAreTold) {
  ASSERT_TRUE(WriteDay(rig.folder, MakeDate(2026, 3, 9), {DayRow{"9:00 AM", "Dentist"}}));
  ASSERT_TRUE(WriteDay(rig.folder, MakeDate(2026, 3, 12), {}));
  form().picker.SelectDay(MakeDate(2026, 3, 10));
  form().picker.SelectDay(MakeDate(2026, 3, 9));
  form().recurrence_buttons[0].Click();
  form().recurrence.choice.every_days.Type("1");
  form().recurrence.choice.occurrences.Type("3");
  files.MakeReadOnly();
  rig.dialogs.ExpectError("Not Saved", "3 dates could not be changed: the disk is read-only.");
  form().recurrence.ok.Click();
}

TEST_F(Zcalandar1OnABadDiskTest, ADayThatCantBeReadSaysWhyAndTakesNoEntries) {
  ASSERT_TRUE(WriteDay(rig.folder, MakeDate(2027, 1, 1), {DayRow{"", "Stored"}}));
  files.Vanish();
  form().picker.SelectDay(MakeDate(2027, 1, 1));
  EXPECT_EQ(form().date_caption.caption(),
            "January 01, 2027 - Fri can't be read: the disk reported an error.");
  EXPECT_FALSE(form().save.enabled());
  EXPECT_FALSE(form().clear_entries.enabled());
  form().entries[2].Type("Lost");
  form().time_picker.Pick(3);
  rig.ClickMenu("mEPaste");
  EXPECT_EQ(form().entries[2].text() + form().times[0].text(), "");
  EXPECT_FALSE(form().save.enabled());
  files.Recover();
  form().picker.SelectDay(MakeDate(2027, 1, 1));
  EXPECT_EQ(form().date_caption.caption(), "January 01, 2027 - Fri");
  form().entries[2].Type("Found");
  EXPECT_EQ(form().entries[2].text(), "Found");
}

TEST_F(Zcalandar1OnABadDiskTest, AMonthThatCantBeReadStaysClosed) {
  int reads = 0;
  files.FailWhen([&](int) { return files.log().back() == "read" && ++reads == 5; });
  rig.dialogs.ExpectError("Can't Be Read",
                          "The month can't be read: the disk reported an error.\n"
                          "Nothing will be written over it.");
  form().view_month.Click();
  EXPECT_FALSE(form().pages.month.panel.visible());
  EXPECT_EQ(form().status(), "");

  form().entries[0].Type("Dropped");
  files.Vanish();
  ExpectQuestion(Answer::kNo);
  form().view_month.Click();
  EXPECT_FALSE(form().pages.month.panel.visible());
  EXPECT_FALSE(form().save.enabled());
  EXPECT_EQ(form().status(), "");
}

TEST_F(Zcalandar1OnABadDiskTest, AToDoListThatIsTooLargeIsntReadAndSaysSo) {
  rig.temporary.Write("TODOActv.FIL", std::string(9u << 20, 'x'));
  rig.dialogs.ExpectYesNo("To Do List Import Function", "Do you want to Import To Do List Items?",
                          Answer::kYes);
  rig.dialogs.ExpectError("Can't Be Read",
                          "The To Do list can't be read: it is too large.\n"
                          "Nothing will be written over it.");
  rig.ClickMenu("mToDo");
}

}  // namespace
}  // namespace tarnwell::planner
