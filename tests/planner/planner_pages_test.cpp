// The month's list, printing, copying and colours of the Daily Planner, by a person's gestures.

#include "planner/planner_pages.h"

#include <gmock/gmock.h>

#include "forms/form_names.h"
#include "planner/day_store.h"
#include "planner/planner_rig.h"
#include "planner/zcalandar1.h"
#include "settings/panel_colors.h"
#include "storage/record_file.h"

namespace tarnwell::planner {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using testing::TextsOf;
using text::MakeDate;

class PlannerPagesTest : public testing::PlannerTest {
 protected:
  print::PrintPanel& print() { return form().pages.print; }
  void Store(unsigned day, const DayRow& row) {
    DayRows rows;
    rows[0] = row;
    ASSERT_TRUE(WriteDay(rig.folder, MakeDate(2026, 3, day), rows));
  }
  std::vector<std::string> Shown() { return TextsOf(print().preview.document()->pages.at(0)); }
  std::vector<std::string> MonthRowAt(int row) {
    const forms::Grid& grid = form().pages.month.grid;
    return {grid.text(row, 0), grid.text(row, 1), grid.text(row, 2)};
  }
};

TEST_F(PlannerPagesTest, TheMonthIsListedUntilItsPanelIsClosed) {
  Store(9, {"9:00 AM", "Bank"});
  Store(22, {"", "Call"});
  rig.ClickMenu("mOV");
  auto& month = form().pages.month;
  EXPECT_EQ(month.panel.caption(), "March 2026");
  EXPECT_EQ(month.grid.rows(), 3);
  EXPECT_THAT(MonthRowAt(0), ElementsAre("Day", "Time", "Appointment/Activity"));
  EXPECT_THAT(MonthRowAt(1), ElementsAre(" 9th", "9:00 AM", "Bank"));
  EXPECT_THAT(MonthRowAt(2), ElementsAre(" 22nd", "", "Call"));
  EXPECT_EQ(form().status(), "View Month");
  for (const char* entry : {"mOV", "mOS", "mOClr", "mOP", "mECopyDay"}) {
    EXPECT_FALSE(Enabled(entry)) << entry;
  }
  EXPECT_TRUE(Enabled("mECopy"));
  EXPECT_FALSE(form().save.Reachable());
  form().PressEscape();
  EXPECT_FALSE(month.panel.visible());
  EXPECT_EQ(form().status(), "");
  EXPECT_TRUE(Enabled("mOV"));
  EXPECT_TRUE(form().save.Reachable());
  EXPECT_TRUE(form().picker.Reachable());
}

TEST_F(PlannerPagesTest, AMonthWithoutRowsHasOneEmptyRow) {
  form().view_month.Click();
  EXPECT_EQ(form().pages.month.grid.rows(), 2);
  EXPECT_THAT(MonthRowAt(1), ElementsAre("", "", ""));
  rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  form().pages.month.print.Click();
  rig.dialogs.ExpectNote("Copy", "There are currently No Entries to Copy!");
  rig.ClickMenu("mOCopy");
}

TEST_F(PlannerPagesTest, ViewingTheMonthOffersToSaveTheDayFirst) {
  form().entries[0].Type("Bank");
  rig.dialogs.ExpectYesNo("Daily Planner", "Save changes/entries before next action?",
                          Answer::kYes);
  rig.dialogs.ExpectNote("Save File Command", "Entries Have Been Time Sorted and File Saved.");
  form().view_month.Click();
  EXPECT_THAT(MonthRowAt(1), ElementsAre(" 9th", "", "Bank"));
  form().pages.month.close.Click();
  form().entries[0].Type("Dropped");
  rig.dialogs.ExpectYesNo("Daily Planner", "Save changes/entries before next action?", Answer::kNo);
  form().view_month.Click();
  EXPECT_THAT(MonthRowAt(1), ElementsAre(" 9th", "", "Bank"));
  form().pages.month.close.Click();
  EXPECT_EQ(form().entries[0].text(), "Bank");
}

TEST_F(PlannerPagesTest, TheDayOnScreenIsPrintedWithItsOptions) {
  rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  form().print_options.Click();
  EXPECT_FALSE(print().is_open());
  Store(9, {"9:00 AM", "Bank"});
  Open();
  rig.ClickMenu("mOP");
  EXPECT_EQ(form().help_context(), 1014);
  EXPECT_FALSE(print().as_of->visible());
  EXPECT_THAT(Shown(), ElementsAre("Printed:  March 9, 2026",
                                   "Appointments/Activities For Monday, March 09, 2026", "Time",
                                   "Appointment/Activity", "9:00 AM", "Bank"));
  EXPECT_FALSE(form().menus().visible());
  EXPECT_FALSE(form().day.visible() || form().picker.visible());
  form().pages.columns.Pick(1);
  EXPECT_EQ(Shown().size(), 8u);
  const auto marks = [this] { return print().preview.document()->pages.at(0).size(); };
  const std::size_t without_lines = marks();
  print().grid_lines->Check(true);
  EXPECT_EQ(print().grid_lines->name(), "Check83");
  EXPECT_GT(marks(), without_lines);
  print().close.Click();
  EXPECT_TRUE(form().menus().visible() && form().day.visible() && form().picker.visible());
  EXPECT_EQ(form().status(), "");
}

TEST_F(PlannerPagesTest, TheMonthIsPrintedFromItsPanel) {
  Store(9, {"9:00 AM", "Bank"});
  form().view_month.Click();
  form().pages.month.print.Click();
  EXPECT_TRUE(print().as_of->visible());
  EXPECT_THAT(Shown(),
              ElementsAre("As of  March 09, 2026 (Page - 1)", "Monthly Calendar For March, 2026",
                          "Day", "Time", "Appointment/Activity", " 9th", "9:00 AM", "Bank"));
  rig.dialogs.ExpectFont(forms::Font{"Arial", 11});
  print().font.Click();
  EXPECT_EQ(storage::TextOf(storage::RecordFile(rig.folder, "GColor4.Fil", 40).GetTagged(24)),
            "Arial");
  print().close.Click();
  EXPECT_TRUE(form().pages.month.panel.visible());
  EXPECT_FALSE(form().picker.visible());
  EXPECT_EQ(form().status(), "View Month");
}

TEST_F(PlannerPagesTest, TheMonthIsExportedFromItsPanel) {
  EXPECT_FALSE(Enabled("mUExport"));
  Store(9, {"9:00 AM", "Bank"});
  form().view_month.Click();
  rig.ClickMenu("mUExport");
  parts::ExportPanel& exporting = form().pages.exporting;
  EXPECT_FALSE(form().pages.month.panel.visible());
  for (const char* entry : {"mUExport", "mOCopy", "mOS"}) EXPECT_FALSE(Enabled(entry)) << entry;
  EXPECT_EQ(exporting.name.text(), "Daily Planner.xls");
  rig.dialogs.ExpectNote("Export Function", "Export Completed to selected location!");
  exporting.save.Click();
  EXPECT_EQ(rig.folders.written["/home/ann/Tarnwell/Daily Planner.xls"],
            "Day\tTime\tAppointment/Activity\r\n 9th\t9:00 AM\tBank\r\n");
  form().PressEscape();
  EXPECT_TRUE(form().pages.month.grid.Reachable());
  EXPECT_TRUE(Enabled("mUExport"));
  form().pages.month.close.Click();
  EXPECT_FALSE(Enabled("mUExport"));
}

TEST_F(PlannerPagesTest, WhatIsOnShowIsCopied) {
  rig.dialogs.ExpectNote("Copy", "There are currently No Entries to Copy!");
  rig.ClickMenu("mECopy");
  Store(9, {"9:00 AM", "Bank"});
  Open();
  rig.dialogs.ExpectNote("Copy Option", "Data has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOCopy");
  EXPECT_THAT(rig.clipboard.text, ::testing::StartsWith("Appointments/Activities For Monday"));
  form().view_month.Click();
  rig.dialogs.ExpectNote("Copy Option", "Data has been copied to the Windows Clipboard.");
  rig.ClickMenu("mECopy");
  EXPECT_THAT(rig.clipboard.text, ::testing::StartsWith("Month Calendar For March 2026\r\n"));
}

TEST_F(PlannerPagesTest, ChangedColoursAreKeptOnlyWhenAPersonSaysSo) {
  const auto change = [&] {
    rig.dialogs.ExpectColorQuestion(Answer::kYes);
    rig.dialogs.ExpectColor(0xCCFFFF);
    rig.ClickMenu("mOC");
    EXPECT_EQ(form().day.background(), 0xCCFFFF);
  };
  const auto leave = [this](Answer answer) {
    rig.dialogs.ExpectYesNoCancel("Color Changes", "Save changes made to Panel and or Text Color?",
                                  answer);
    form().exit.Click();
  };
  change();
  leave(Answer::kCancel);
  EXPECT_EQ(rig.top(), "Zcalandar1");
  rig.dialogs.ExpectYesNo("Color Changes", "Save changes made to Panel and or Text Color?",
                          Answer::kNo);
  rig.CloseWindow();
  EXPECT_EQ(rig.top(), "Startfrm");
  Open();
  EXPECT_EQ(form().day.background(), std::nullopt);
  change();
  rig.dialogs.ExpectColor(0x800000);
  rig.ClickMenu("mOTC");
  EXPECT_EQ(form().entries[3].color(), 0x800000);
  leave(Answer::kYes);
  Open();
  EXPECT_EQ(form().day.background(), 0xCCFFFF);
  EXPECT_EQ(form().times[0].color(), 0x800000);
  form().exit.Click();  // nothing was changed since
}

TEST_F(PlannerPagesTest, TheMonthsBackgroundIsPaintedAtOnceAndHoldsForTheRun) {
  rig.temporary.Write("WP3.jpg", "picture");
  Store(9, {"9:00 AM", "Bank"});
  const auto look = [this] { return form().pages.month.grid.look(); };
  rig.ClickMenu("mOV");
  rig.ClickMenu("mOGB");
  EXPECT_FALSE(form().pages.month.panel.visible());
  EXPECT_FALSE(Enabled("mOGB"));
  form().background.thumbnails[2].Click();
  form().background.use_marked.Click();
  EXPECT_EQ(look().wallpaper, "WP3.jpg");
  form().background.exit.Click();
  EXPECT_TRUE(form().pages.month.panel.visible());
  EXPECT_FALSE(form().picker.visible());
  form().pages.month.close.Click();
  rig.ClickMenu("mOGB");
  EXPECT_FALSE(form().day.visible());
  form().background.exit.Click();
  EXPECT_TRUE(form().day.visible());
  EXPECT_TRUE(form().picker.visible());

  form().exit.Click();
  rig.navigator().Show(forms::form_names::kZcalandar1);
  EXPECT_EQ(look().wallpaper, "WP3.jpg");
  rig.Start();
  rig.navigator().Show(forms::form_names::kZcalandar1);
  EXPECT_EQ(look(), forms::GridLook{});
}

}  // namespace
}  // namespace tarnwell::planner
