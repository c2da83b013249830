#include "planner/calendar.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "planner/day_store.h"
#include "storage/sequential_file.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::planner {
namespace {

using forms::Answer;
using ::testing::Contains;

constexpr const char* kSaveTitle = "Save Option";
constexpr const char* kQuestion = "Save changes made to data before next action?";

const forms::MessageBox kDeleteMonth{kSaveTitle, "Delete March 2026 calendar entries and file?",
                                     forms::Icon::kQuestion, forms::Buttons::kYesNo, 2};

std::string TrimText(const char* begin) {
  return std::string(begin) +
         "Appointment/Activity entry from the Daily Planner\n"
         " may be too large to fit into the calandar space provided.\n\n"
         "Please select the following for action desired:\n"
         "Trim Entry:\n"
         "Yes      - To trim entries to fit.\n"
         "No        - To import entries regardless of length\n"
         "Cancel - To exit Import Option without importing any data!";
}

class CalendarTest : public ::testing::Test {
 protected:
  void SetUp() override { Open(); }
  void Open() {
    rig.Start();
    rig.navigator().Show("Calendar");
  }
  Calendar& form() { return rig.Get<Calendar>("Calendar"); }
  DayLines Stored(unsigned day, unsigned month = 3) {
    return ReadMonthSheet(rig.folder, text::MakeDate(2026, month, day), {})
        .sheet.DayOf(text::MakeDate(2026, month, day));
  }
  void PickDay(unsigned day, unsigned month = 3) {
    form().picker.SelectDay(text::MakeDate(2026, month, day));
  }
  void ExpectTrimQuestion(const char* begin, Answer answer) {
    rig.dialogs.Expect({"Import Selection", TrimText(begin), forms::Icon::kInformation,
                        forms::Buttons::kYesNoCancel},
                       answer);
  }
  std::vector<std::string> Drawn() {
    return testing::TextsOf(form().preview.document()->pages.at(0));
  }
  void Plan(unsigned day, const DayRow& row) {
    DayRows rows;
    rows[0] = row;
    ASSERT_TRUE(WriteDay(rig.folder, text::MakeDate(2026, 3, day), rows));
  }

  testing::ProgramRig rig;
};

TEST_F(CalendarTest, WhatIsTypedIsDrawnAtOnceAndWrittenBySave) {
  EXPECT_EQ(form().day_caption.caption(), "Monday - March 9, 2026");
  form().lines[0].Type("15\" screen");
  EXPECT_THAT(Drawn(), Contains("15' screen"));
  EXPECT_FALSE(rig.folder.Exists("202603.Fil"));
  form().enter_and_save.Click();
  EXPECT_EQ(Stored(9)[0], "15' screen");
  EXPECT_EQ(form().status(), "March 2026 has been saved.");
  EXPECT_FALSE(form().unsaved());
  rig.dialogs.ExpectFont(forms::Font{.name = "Arial", .size = 8});
  form().font.Click();
  form().save.Click();
  Open();
  EXPECT_EQ(form().lines[0].text(), "15' screen");
  rig.dialogs.ExpectFont(std::nullopt);
  form().font.Click();
  EXPECT_EQ(rig.dialogs.last_start_font.name, "Arial");
}

TEST_F(CalendarTest, LeavingTypedLinesAsks) {
  form().lines[0].Type("dropped");
  rig.dialogs.ExpectYesNoCancel(kSaveTitle, kQuestion, Answer::kNo);
  PickDay(10);
  EXPECT_FALSE(form().unsaved());
  PickDay(9);
  EXPECT_EQ(form().lines[0].text(), "");
  form().lines[0].Type("kept");
  rig.dialogs.ExpectYesNoCancel(kSaveTitle, kQuestion, Answer::kYes);
  PickDay(1, 4);
  EXPECT_EQ(Stored(9)[0], "kept");
  EXPECT_EQ(form().lines[0].text(), "");
  EXPECT_THAT(Drawn(), Contains("April 2026"));
  form().lines[0].Type("still here");
  const std::function<void()> ways[] = {[&] { PickDay(2, 4); }, [&] { PickDay(1, 5); },
                                        [&] { form().exit.Click(); }, [&] { rig.CloseWindow(); }};
  for (const auto& leave : ways) {
    rig.dialogs.ExpectYesNoCancel(kSaveTitle, kQuestion, Answer::kCancel);
    leave();
    ASSERT_EQ(rig.top(), "Calendar");
    EXPECT_EQ(form().lines[0].text(), "still here");
    EXPECT_EQ(form().picker.date(), text::MakeDate(2026, 4, 1));
  }
  rig.dialogs.ExpectYesNoCancel(kSaveTitle, kQuestion, Answer::kNo);
  rig.CloseWindow();
  EXPECT_EQ(rig.top(), "Startfrm");
}

TEST_F(CalendarTest, TheListOffersThePickedDayAndMonth) {
  PickDay(2);
  EXPECT_THAT(
      form().imports.items(),
      ::testing::ElementsAre("March 2, 2026 With Times", "March 2, 2026 WithOut Times",
                             "Month: March 2026 With Times", "Month: March 2026 WithOut Times",
                             "To Do List Items: March 2026"));
}

TEST_F(CalendarTest, AMonthOfThePlannerIsImportedOnceAndStaysUnsaved) {
  Plan(9, {"9:00 AM", "Dentist"});
  Plan(31, {"", std::string(50, 'W')});
  ExpectTrimQuestion("Time plus ", Answer::kCancel);
  form().imports.Pick(2);
  EXPECT_FALSE(form().unsaved());
  for (int time = 0; time < 2; ++time) {
    ExpectTrimQuestion("Time plus ", Answer::kYes);
    form().imports.Pick(2);
    EXPECT_EQ(form().lines[0].text(), "9:00 AM Dentist");
    EXPECT_EQ(form().lines[1].text(), "");
  }
  EXPECT_TRUE(form().unsaved());
  PickDay(31);
  const std::string trimmed = form().lines[0].text();
  EXPECT_LT(trimmed.size(), 50u);
  EXPECT_EQ(trimmed, std::string(trimmed.size(), 'W'));
  EXPECT_EQ(form().lines[1].text(), "");
  form().save.Click();
  EXPECT_EQ(Stored(9)[0], "9:00 AM Dentist");
  PickDay(10);
  ExpectTrimQuestion("", Answer::kNo);
  rig.dialogs.ExpectNote("Import Daily Planner Appointments",
                         "No enteries were found for Import from Daily Planner function!");
  form().imports.Pick(1);
  PickDay(9);
  ExpectTrimQuestion("", Answer::kNo);
  form().imports.Pick(1);
  EXPECT_FALSE(form().unsaved());
}

TEST_F(CalendarTest, ToDoItemsOfTheMonthAreEnteredAndSaved) {
  rig.dialogs.ExpectNote("Import To Do List Items",
                         "No To Do List Items for this month have been found!");
  form().imports.Pick(4);
  storage::WriteNameList(rig.folder, "TODOActv.FIL", {"Pay rent", "Thu - Mar 12, 26", "", "", ""});
  for (int time = 0; time < 2; ++time) {
    rig.dialogs.ExpectNote("Import To Do List Items",
                           "To Do List Items for this month have been found, entered and saved!");
    form().imports.Pick(4);
    EXPECT_EQ(Stored(12)[0], "Pay rent");
    EXPECT_EQ(Stored(12)[1], "");
  }
}

TEST_F(CalendarTest, TheSheetIsPrintedCopiedAndShownOnThePaperChosen) {
  form().print.Click();
  EXPECT_EQ(rig.pages.printed.back().title, "Calendar March 2026");
  EXPECT_TRUE(rig.pages.printed.back().setup.landscape);
  rig.dialogs.ExpectNote("Copy Option",
                         "Current Calendar has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOCopy");
  EXPECT_THAT(testing::TextsOf(rig.pages.copied), Contains("March 2026"));
  rig.pages.setup.emplace();
  rig.pages.setup->paper_width = 11906;
  rig.pages.setup->paper_height = 16838;
  rig.ClickMenu("mOPrtSet");
  rig.ClickMenu("mOprint");
  EXPECT_EQ(rig.pages.printed.back().setup, *rig.pages.setup);
  form().zoom.Click();
  EXPECT_EQ(form().preview.zoom(), forms::Zoom::kEnlarged);
  EXPECT_EQ(form().zoom.caption(), "Normal");
  form().zoom.Click();
  EXPECT_EQ(form().preview.zoom(), forms::Zoom::kNormal);
  form().auto_size.Click();
  EXPECT_EQ(form().preview.zoom(), forms::Zoom::kWholePage);
  form().sort_time.Pick(1);
  form().guide_lines.Pick(1);
  Open();
  EXPECT_EQ(form().sort_time.chosen(), 1);
  EXPECT_TRUE(form().preview.guide_lines());
}

TEST_F(CalendarTest, AMonthIsDeletedOnlyOnYes) {
  form().lines[0].Type("x");
  form().save.Click();
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    rig.dialogs.Expect(kDeleteMonth, answer);
    rig.ClickMenu("mODel");
    EXPECT_EQ(rig.folder.Exists("202603.Fil"), answer == Answer::kNo);
  }
  EXPECT_EQ(form().lines[0].text(), "");
}

TEST_F(CalendarTest, WhatTheDiskRefusesOrCantReadIsKeptAndTold) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig full(files);
  full.Start();
  full.navigator().Show("Calendar");
  auto& calendar = full.Get<Calendar>("Calendar");
  calendar.lines[0].Type("old");
  calendar.save.Click();
  const std::string old = full.temporary.Read("202603.Fil");
  calendar.lines[0].Type("new");
  files.AllowBytes(100);
  const auto refusal = [&] {
    full.dialogs.ExpectError("Not Saved",
                             "The calendar of March 2026 could not be saved: the disk is full.\n"
                             "It is still on the screen.");
  };
  refusal();
  calendar.save.Click();
  full.dialogs.ExpectYesNoCancel(kSaveTitle, kQuestion, Answer::kYes);
  refusal();
  full.dialogs.ExpectLeaveUnsaved(Answer::kNo);
  calendar.picker.SelectDay(text::MakeDate(2026, 5, 1));
  EXPECT_EQ(calendar.picker.date(), text::MakeDate(2026, 3, 9));
  EXPECT_EQ(calendar.lines[0].text(), "new");
  EXPECT_TRUE(calendar.unsaved());
  EXPECT_EQ(full.temporary.Read("202603.Fil"), old);
  files.MakeReadOnly();
  full.dialogs.Expect(kDeleteMonth, Answer::kYes);
  full.dialogs.ExpectError(
      "Not Deleted",
      "The calendar of March 2026 could not be deleted: the disk is read-only.\n"
      "It stays as it is.");
  full.ClickMenu("mODel");
  EXPECT_EQ(calendar.lines[0].text(), "new");

  for (const char* name : {"202604.Fil", " 2026.Cal", "TODOActv.FIL"}) {
    rig.temporary.Remove(name);
    std::filesystem::create_directory(rig.temporary.path() + "/" + name);
  }
  const auto expect_unreadable = [&](const char* what) {
    rig.dialogs.ExpectError("Can't Be Read",
                            std::string(what) +
                                " can't be read: something else has the name of its "
                                "file.\nNothing will be written over it.");
  };
  expect_unreadable("The To Do list");
  form().imports.Pick(4);
  ExpectTrimQuestion("Time plus ", Answer::kNo);
  expect_unreadable("The Daily Planner");
  form().imports.Pick(2);
  PickDay(1, 4);
  EXPECT_EQ(form().status(), "April 2026 can't be read: something else has the name of its file.");
  form().lines[0].Type("x");
  EXPECT_FALSE(form().unsaved());
  EXPECT_FALSE(form().save.enabled());
}

}  // namespace
}  // namespace tarnwell::planner
