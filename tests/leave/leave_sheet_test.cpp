#include "leave/leave_sheet.h"

#include <gmock/gmock.h>

#include "leave/leave_balance.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::leave {
namespace {

using forms::Answer;
using forms::GridPlace;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kSheetTitle = "Employee Sick Leave Tracker";

std::string Question(const char* year) {
  return "Save changes made to " + std::string(year) +
         " Employee Sick Leave Tracker before Exiting?";
}

// On March 9, 2026.
class LeaveSheetTest : public ::testing::Test {
 protected:
  void SetUp() override { Open(); }
  void Open(const char* name = "SICKLEAVE1") {
    rig.Start();
    rig.navigator().Show(name);
  }
  LeaveSheet& form() { return dynamic_cast<LeaveSheet&>(*rig.navigator().top()); }
  forms::Grid& grid() { return form().grid; }
  void TypeYear(const char* year) {
    form().years.Type(year);
    form().years.PressEnter();
  }
  void ExpectQuestion(Answer answer, const char* year = "2026") {
    rig.dialogs.ExpectYesNoCancel(kSheetTitle, Question(year), answer);
  }
  void ExpectCopyQuestion(const char* text, Answer answer) {
    rig.dialogs.Expect({"Copy Year", text, forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                       answer);
  }
  void ExpectDeleteQuestion(Answer answer) {
    rig.dialogs.Expect({"Delete Row", "Do you really want to delete this row?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       answer);
  }

  testing::FailingFileSystem disk{storage::RealFileSystem()};
  testing::ProgramRig rig{disk};
};

TEST_F(LeaveSheetTest, DaysAreSummedAsTheyAreTyped) {
  EXPECT_EQ(form().caption(), "Employee Data - Employee Sick Leave Tracker");
  EXPECT_EQ(form().years.text(), "2026");
  EXPECT_EQ(form().location.caption(), "C1:R1");
  EXPECT_EQ(grid().rows(), 51);
  EXPECT_FALSE(form().copy_right.enabled() || form().delete_row.enabled());
  grid().EditCell(1, kName, "Ann \"Lee\"");
  grid().EditCell(1, kAuthorized, "10");
  grid().EditCell(1, kJanuary, "12.5");
  EXPECT_EQ(grid().text(1, kName), "Ann 'Lee'");
  EXPECT_EQ(grid().text(1, kUsed), "12.50");
  EXPECT_EQ(grid().text(1, kBalance), "-2.50");
  EXPECT_EQ(grid().style(1, kBalance), (forms::GridCellStyle{kOverdrawn, true}));
  grid().EditCell(1, kJanuary, "2");
  EXPECT_EQ(grid().text(1, kBalance), "8.00");
  EXPECT_EQ(grid().style(1, kBalance), (forms::GridCellStyle{forms::kBlack, true}));
  grid().Undo();
  EXPECT_EQ(grid().text(1, kBalance), "-2.50");
  EXPECT_TRUE(form().unsaved());
  form().save.Click();
  EXPECT_FALSE(form().unsaved());
  EXPECT_THAT(rig.temporary.Read("2026.Sl1"), StartsWith("\"Ann 'Lee'\"\r\n\"12.50\"\r\n"));
  EXPECT_EQ(rig.temporary.Read("2026.Sl2"), "\"51\"\r\n");
}

TEST_F(LeaveSheetTest, BehindARefusalThePersonStaysInTheCell) {
  const struct {
    const char* what;
    std::function<void()> go;
  } ways[] = {{"Tab", [this] { grid().Step(forms::GridStep::kNext); }},
              {"Down", [this] { grid().Step(forms::GridStep::kDown); }},
              {"Up", [this] { grid().Step(forms::GridStep::kUp); }},
              {"a click elsewhere", [this] { grid().SelectCell(9, kName); }},
              {"Enter", [this] { grid().EndEdit(); }}};
  for (const auto& way : ways) {
    for (const auto& [typed, told, left] :
         {std::tuple{"ill", "Cell entries must be numbers only!", ""},
          {"0", "Cell entries must be numbers only!", ""},
          {"1000", "Cell entries are limited to 999.99!", "999.99"}}) {
      grid().SelectCell(4, kJanuary + 2);
      grid().TypeInCell(typed);
      rig.dialogs.ExpectWarning("Invalid Cell Entry", told);
      way.go();
      EXPECT_EQ(grid().current(), (GridPlace{4, kJanuary + 2})) << way.what << " " << typed;
      EXPECT_EQ(grid().text(4, kJanuary + 2), left) << way.what << " " << typed;
    }
  }
  grid().SelectCell(4, kUsed);
  EXPECT_EQ(grid().current(), (GridPlace{4, kName}));
  grid().SelectCell(5, kBalance);
  EXPECT_EQ(form().location.caption(), "C1:R5");
}

TEST_F(LeaveSheetTest, TheInputBoxWritesIntoTheCellInHand) {
  grid().EditCell(2, kName, "Bob");
  grid().SelectCell(2, kJanuary);
  form().box.Focus();
  EXPECT_TRUE(form().box.marked());
  form().box.Type("1.5,7");
  EXPECT_EQ(form().box.text(), "1.5");
  EXPECT_EQ(grid().text(2, kUsed), "1.50");
  form().box.Type("1000");
  EXPECT_EQ(form().box.text(), "999.99");
  EXPECT_EQ(rig.window.beeps, 1);
  grid().SelectCell(2, kName);
  EXPECT_EQ(form().box.text(), "Bob");
  form().box.Focus();
  form().box.Type("Bob, Ann");
  EXPECT_EQ(grid().text(2, kName), "Bob");
  form().years.Focus();
  EXPECT_FALSE(form().box.marked());
}

TEST_F(LeaveSheetTest, RowsAreCountedAtOnceAndSavedLater) {
  grid().EditCell(1, kName, "Ann");
  grid().EditCell(1, kJanuary, "1");
  grid().SelectCell(1, kJanuary);
  form().copy_right.Click();
  EXPECT_EQ(grid().text(1, kUsed), "12.00");
  EXPECT_EQ(grid().text(1, kAuthorized), "");
  rig.ClickMenu("mOIn");
  EXPECT_EQ(grid().rows(), 52);
  EXPECT_EQ(grid().text(2, kName), "Ann");
  EXPECT_EQ(grid().text(51, 0), "51");
  EXPECT_EQ(rig.temporary.Read("2026.Sl2"), "\"52\"\r\n");
  EXPECT_FALSE(rig.folder.Exists("2026.Sl1"));

  forms::MenuItem& options = *form().menus().Find("mO");
  options.Open();
  EXPECT_FALSE(options.Find("mODel")->enabled());  // on an empty cell
  EXPECT_TRUE(form().delete_row.enabled());
  ExpectDeleteQuestion(Answer::kNo);
  form().delete_row.Click();
  EXPECT_EQ(grid().rows(), 52);
  ExpectDeleteQuestion(Answer::kYes);
  form().delete_row.Click();
  EXPECT_EQ(grid().text(1, kName), "Ann");
  EXPECT_EQ(rig.temporary.Read("2026.Sl2"), "\"51\"\r\n");
  EXPECT_FALSE(form().delete_row.enabled());

  options.Open();
  EXPECT_TRUE(options.Find("mODel")->enabled());  // on Ann, whom nobody has picked yet
  grid().EditCell(3, kName, "Abe");
  grid().ClickHeading(kName);
  EXPECT_EQ(grid().text(1, kName), "Abe");
  EXPECT_EQ(grid().rows(), 51);
}

TEST_F(LeaveSheetTest, AYearIsLeftOnlyAsAPersonAnswers) {
  grid().EditCell(1, kName, "Ann");
  ExpectQuestion(Answer::kCancel);
  TypeYear("1989");
  EXPECT_EQ(form().years.text(), "2026");
  EXPECT_TRUE(form().unsaved());
  ExpectQuestion(Answer::kNo);
  TypeYear("1989");
  EXPECT_EQ(form().years.text(), "1990");
  EXPECT_FALSE(form().unsaved());
  grid().EditCell(1, kName, "Old Ann");
  // Saying No as the list opens drops the changes then, and they aren't asked about again.
  ExpectQuestion(Answer::kNo, "1990");
  EXPECT_TRUE(form().years.Open());
  EXPECT_EQ(grid().text(1, kName), "");
  form().years.Pick(26);
  EXPECT_EQ(form().years.text(), "2026");

  grid().EditCell(1, kName, "Ann");
  ExpectQuestion(Answer::kYes);
  form().exit.Click();
  EXPECT_NE(rig.top(), "SICKLEAVE1");
  EXPECT_THAT(rig.temporary.Read("2026.Sl1"), StartsWith("\"Ann\"\r\n"));
}

TEST_F(LeaveSheetTest, CopiesTakeTheSavedFileAndKeepWhatTheyReplace) {
  ExpectCopyQuestion("Copy 2026 file to 2027?", Answer::kYes);
  rig.dialogs.ExpectWarning("Copy Year",
                            "The year 2026 has not been saved yet, so there is nothing to copy.");
  rig.ClickMenu("mECY");
  grid().EditCell(1, kName, "Ann");
  grid().EditCell(1, kJanuary, "1");
  form().save.Click();
  grid().EditCell(1, kName, "Unsaved");
  rig.temporary.Write("2027.Sl1", "\"Old\"\r\n");
  ExpectCopyQuestion("Copy 2026 file to 2027?", Answer::kYes);
  rig.ClickMenu("mECY");
  EXPECT_EQ(rig.temporary.Read("2027.Sl1"), rig.temporary.Read("2026.Sl1"));
  EXPECT_THAT(form().status(), HasSubstr("kept in 2027.Sl1.old"));
  ExpectCopyQuestion("Copy 2026 file (Employee Names and Auth Only) to 2027?", Answer::kYes);
  form().copy_year.Click();
  EXPECT_THAT(rig.temporary.Read("2027.Sl1"), StartsWith("\"Unsaved\"\r\n\"\"\r\n"));
  EXPECT_EQ(rig.temporary.Read("2027.Sl1.old"), "\"Old\"\r\n");
  EXPECT_FALSE(rig.folder.Exists("2027.Sl2"));
  ExpectQuestion(Answer::kNo);
  TypeYear("2027");
  grid().EditCell(1, kJanuary, "3");
  form().save.Click();
  EXPECT_FALSE(rig.folder.Exists("2027.Sl1.old"));
}

TEST_F(LeaveSheetTest, ADiskThatRefusesIsTold) {
  grid().EditCell(1, kName, "Ann");
  disk.MakeReadOnly();
  rig.dialogs.ExpectError("Not Saved",
                          "The 2026 Employee Sick Leave Tracker could not be saved: the disk is "
                          "read-only.\nIt is still on the screen.");
  form().save.Click();
  EXPECT_TRUE(form().unsaved());
}

TEST_F(LeaveSheetTest, AYearThatCantBeReadIsLocked) {
  rig.temporary.Write("2025.Sl1", "\"Ann\"\r\n");
  disk.FailWhen([this](int) { return disk.log().back() == "read"; });
  TypeYear("2025");
  disk.Recover();
  EXPECT_FALSE(grid().enabled() || form().save.enabled() || form().box.enabled());
  EXPECT_TRUE(form().years.enabled() && form().exit.enabled());
  EXPECT_THAT(form().status(), HasSubstr("can't be read"));
  TypeYear("2026");
  EXPECT_TRUE(grid().enabled() && form().save.enabled());
}

TEST_F(LeaveSheetTest, ReportClipboardAndExport) {
  rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  form().print_options.Click();
  grid().EditCell(1, kName, "Ann Lee");
  grid().EditCell(1, kAuthorized, "1");
  grid().EditCell(1, kJanuary, "2");
  form().print_options.Click();
  const auto texts = testing::TextsOf(form().print.preview.document()->pages.at(0));
  EXPECT_THAT(texts, Contains(" Employee Sick Leave Tracker For 2026"));
  EXPECT_THAT(texts, Contains("Printed: Monday, March 09, 2026"));
  for (const char* text : {"Employee Name", "Bal", "Ann Lee", "2.00", "-1.00"}) {
    EXPECT_THAT(texts, Contains(text));
  }
  form().print.Close();
  rig.dialogs.ExpectNote(
      "Copy Option",
      "Current Employee Sick Leave Tracker has been copied to the Windows Clipboard.");
  rig.ClickMenu("mECopy");
  EXPECT_THAT(rig.clipboard.text, StartsWith("2026 Employee Sick Leave Tracker\r\n\r\nEmployee"));
  EXPECT_THAT(rig.clipboard.text, HasSubstr("\r\nAnn Lee"));
  form().menus().Find("mU")->Open();
  rig.ClickMenu("mUExcel");
  EXPECT_EQ(form().exporting.name.text(), "Sick Leave2026.xls");
  form().exporting.Close();
  rig.dialogs.ExpectWarning(
      "View Totals",
      "There must be at least one entry and at least one income entry to view Totals!");
  form().totals.Click();
}

TEST(VacationTest, HasFilesAndWordsOfItsOwn) {
  testing::ProgramRig rig;
  rig.Start();
  rig.navigator().Show("Vacation1");
  auto& form = dynamic_cast<LeaveSheet&>(*rig.navigator().top());
  form.grid.EditCell(1, kName, "Ann");
  form.save.Click();
  EXPECT_TRUE(rig.folder.Exists("2026.Vl1") && rig.folder.Exists("2026.Vl2"));
  EXPECT_FALSE(rig.folder.Exists("2026.Sl1"));
  rig.dialogs.ExpectNote(
      "Copy Option", "Current Employee Vacation Tracker has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOCopy");
  EXPECT_THAT(rig.clipboard.text, StartsWith("2026 Employee Vacation Leave Tracker\r\n\r\n"));
}

}  // namespace
}  // namespace tarnwell::leave
