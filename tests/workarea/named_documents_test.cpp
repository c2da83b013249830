// Reports and archived copies: what the user makes, names, finds again and deletes.

#include <gmock/gmock.h>

#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "workarea/archive_names.h"
#include "workarea/report_names.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr const char* kBegin = "Select New Report - Insert Template";
constexpr const char* kJobReminder =
    "Please enter Job Description Name and Date of Action Prior to Saving!";
constexpr const char* kArchiveQuestion =
    "Make Archive Copy of Policies, Rish Analysis, Incident Reports";

class NamedDocumentsTest : public WorkAreaTest {
 protected:
  DocumentView& view() { return hub().document; }
  NamesPanel& names() { return hub().names; }

  void OpenReports(Area area = kJobDescriptions) {
    Open();
    if (area != kJobDescriptions) hub().main_buttons[parts::kEmployeeData].Click();
    Press("SSCommand11(" + std::to_string(area) + ")");
  }
  void BeginBlank(const std::string& name, const std::string& words) {
    rig.dialogs.ExpectNote(kBegin, kJobReminder);
    names().new_blank.Click();
    names().name.Type(name);
    view().text.Type(words);
  }
  void ExpectFile(const std::string& done, const std::string& name) {
    rig.dialogs.ExpectNote("Save File Action", "This File [ " + name + " ] Has Been " + done + "!");
  }
  void ExpectDeletion(const std::string& name, Answer answer) {
    rig.dialogs.Expect({"Delete File!", "Are you sure you want to delete file [ " + name + " ]?",
                        forms::Icon::kCritical, forms::Buttons::kYesNo, 2},
                       answer);
  }
  void ExpectArchiveQuestion(const std::string& name, Answer answer) {
    rig.dialogs.Expect({kArchiveQuestion, "Make Archive Copy of [ " + name + " ]?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       answer);
  }
  void ExpectArchived(const std::string& name) {
    ExpectArchiveQuestion(name, Answer::kYes);
    rig.dialogs.ExpectNote("Archive File Save", "Archived File Has Been Created.");
  }
  void Archive(const char* button) {
    Press(button);
    rig.ClickMenu("mOArchive");
  }
  std::vector<std::string> Listed() { return names().list.items(); }
};

using ReportsTest = NamedDocumentsTest;
using ArchiveTest = NamedDocumentsTest;

TEST(ReportNamesTest, ANewReportLikeAnotherGetsTodaysDate) {
  const text::Date today = text::MakeDate(2026, 3, 9);
  EXPECT_EQ(NameForToday("  Ann Lee ", today), "Ann Lee / 03/09/2026");
  EXPECT_EQ(NameForToday("Ann Lee / 11/30/2025", today), "Ann Lee / 03/09/2026");
  EXPECT_EQ(NameForToday("Ann / 11-30-2025", today), "Ann / 11-30-2025 / 03/09/2026");
}

TEST_F(ReportsTest, ReportsAreMadeListedUpdatedAndDeleted) {
  OpenReports();
  EXPECT_EQ(names().title.caption(), "Company Job Descriptions - Prepare, Store or Review");
  BeginBlank("Welder / 03/09/2026", "Welds");
  EXPECT_EQ(names().prompt.caption(), "Enter Name and Date Above");
  ExpectFile("Saved/Updated", "Welder / 03/09/2026");
  view().save.Click();
  BeginBlank("Zo\xEB Ash", "Paints");
  ExpectFile("Saved/Updated", "Zo\xEB Ash");
  view().save.Click();
  EXPECT_EQ(rig.temporary.Read("JobHold.Fl5"),
            testing::FileOf(testing::ReadFormatExample("jobhold.md")));
  EXPECT_EQ(Stored("Welder - 03-09-2026.Fl5"), "Welds");

  OpenReports();
  EXPECT_EQ(view().heading.caption(),
            "There are 2 Entries - Company Job Descriptions - Prepare, Store or Review");
  EXPECT_EQ(names().prompt.caption(), "Select Existing Report");
  names().remove.Click();  // nothing is picked
  names().list.Pick(0);
  EXPECT_EQ(Shown(), "Welds");
  view().text.Type("He ");
  ExpectFile("Updated/Saved", "Welder / 03/09/2026");
  view().save.Click();
  EXPECT_EQ(Stored("Welder - 03-09-2026.Fl5"), "He Welds");
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(names().name.text(), "");

  names().list.Pick(0);
  ExpectDeletion("Welder / 03/09/2026", Answer::kNo);
  names().remove.Click();
  EXPECT_EQ(Shown(), "He Welds");
  for (const char* name : {"Welder / 03/09/2026", "Zo\xEB Ash"}) {
    names().list.Pick(0);
    ExpectDeletion(name, Answer::kYes);
    names().remove.Click();
  }
  EXPECT_FALSE(rig.folder.Exists("Welder - 03-09-2026.Fl5"));
  EXPECT_FALSE(rig.folder.Exists("JobHold.Fl5"));
  rig.dialogs.ExpectNote(
      kBegin,
      "There are currently no Existing/Saved Company Job Descriptions - Prepare, "
      "Store or Review!");
  names().select.Click();
}

TEST_F(ReportsTest, ANameThatReachesAnothersFileReplacesItOnlyOnYes) {
  rig.temporary.Write("JobHold.Fl5", "\"A / B\"\r\n");
  rig.temporary.Write("A - B.Fl5", Rtf("Old"));
  OpenReports();
  BeginBlank("a - b", "New");
  const auto expect_question = [&](Answer answer) {
    rig.dialogs.Expect({"Save Changes to Existing File?",
                        "File by Name [ a - b ] already Exists!\nDo you want to Replace it?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                       answer);
  };
  expect_question(Answer::kNo);
  view().save.Click();
  EXPECT_TRUE(view().unsaved());
  EXPECT_EQ(Stored("A - B.Fl5"), "Old");
  expect_question(Answer::kYes);
  rig.dialogs.ExpectNote(kSaved, "File Has Been Saved/Updated!");
  view().save.Click();
  EXPECT_EQ(Stored("A - B.Fl5"), "New");
  EXPECT_EQ(rig.temporary.Read("JobHold.Fl5"), "\"A / B\"\r\n");
}

TEST_F(ReportsTest, WithoutANameOrATextNothingIsSaved) {
  struct {
    Area area;
    const char* name_missing;
    const char* text_missing;
    const char* reminder;
  } const cases[] = {
      {kJobDescriptions,
       "Please Enter a Job Description Name and Date of Action and Click Save Again!",
       "Job Title and Date and/or Document Must Both Be Entered Prior to Saving!", kJobReminder},
      {kEvaluations, "Please Enter a Name and Date of Action and Click Save Again!",
       "Employee Name and Date and/or Document Must Both Be Entered Prior to Saving!",
       "Please enter Emloyee Name and Date of Action Prior to Saving!"},
  };
  for (const auto& c : cases) {
    OpenReports(c.area);
    rig.dialogs.ExpectNote(kBegin, c.reminder);
    names().new_blank.Click();
    rig.dialogs.ExpectNote(kSaved, c.name_missing);
    view().save.Click();
    names().name.Type("  ");
    view().text.Type("Words");
    rig.dialogs.ExpectNote(kSaved, c.name_missing);
    view().save.Click();
    EXPECT_TRUE(view().unsaved());
    names().name.Type("Ann");
    view().text.Erase({{0, 0}, {0, 5}});
    rig.dialogs.ExpectNote(kSaved, c.text_missing);
    view().save.Click();
  }
  EXPECT_THAT(rig.temporary.Names(), Not(Contains("Ann.Fl5")));
}

TEST_F(ReportsTest, TheTemplateIsTheSuppliedOneOrTheUsersOwn) {
  struct {
    Area area;
    const char* number;
    const char* question;
  } const cases[] = {
      {kJobDescriptions, "12", "Enter Job Description saved in Company Agreement/Docs Area?"},
      {kDisciplinaryActions, "23",
       "Enter Disciplinary Action Form saved in Company Agreement/Docs Area?"},
      {kEvaluations, "26", "Enter Employee Evaluation Form saved in Company Agreement/Docs Area?"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.number);
    const std::string stem = std::string("EmployPolicy") + c.number;
    rig.temporary.Write(stem + ".Fl1", Rtf("Supplied"));
    const std::string reminder =
        c.area == kJobDescriptions
            ? kJobReminder
            : "Please enter Employee Name and Date of Action Prior to Saving!";
    OpenReports(c.area);
    rig.dialogs.ExpectNote(kBegin, reminder);
    names().new_report.Click();
    EXPECT_EQ(Shown(), "Supplied");
    EXPECT_TRUE(view().unsaved());

    rig.temporary.Write(stem + ".Fl2", Rtf("Mine"));
    for (const auto& [answer, words] :
         {std::pair{Answer::kNo, "Supplied"}, {Answer::kYes, "Mine"}}) {
      rig.dialogs.ExpectYesNoCancel(
          kBegin, "Save Current Document, etc. before inserting a new Template?", Answer::kNo);
      rig.dialogs.Expect({kBegin, c.question, forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                         answer);
      rig.dialogs.ExpectNote(kBegin, reminder);
      names().new_report.Click();
      EXPECT_EQ(Shown(), words);
    }
    rig.dialogs.ExpectYesNoCancel(kBegin, "Save Current Document, etc. before this Action?",
                                  Answer::kCancel);
    names().new_blank.Click();
    EXPECT_EQ(Shown(), "Mine");
  }
}

TEST_F(ReportsTest, AnEntryWhoseDocumentIsGoneIsToldAndCanBeDeleted) {
  rig.temporary.Write("JobHold.Fl5", "\"Gone\"\r\n\"Here\"\r\n");
  rig.temporary.Write("Here.Fl5", Rtf("Words"));
  OpenReports();
  names().list.Pick(0);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(hub().status(), "The document of this name isn't there any more.");
  ExpectDeletion("Gone", Answer::kYes);
  names().remove.Click();
  EXPECT_THAT(Listed(), ElementsAre("Here"));
}

TEST_F(ReportsTest, OnABadDiskTheTextStaysUnsavedAndTheListAsItWas) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  const std::string list = "\"Ann\"\r\n";
  std::uint64_t text_size = 0;  // bytes
  const auto save = [&](const char* trouble, const std::function<void()>& begin,
                        const std::string& told) {
    SCOPED_TRACE(trouble);
    testing::ProgramRig failing(files);
    failing.temporary.Write("JobHold.Fl5", list);
    failing.Start();
    failing.Get<shell::Startfrm>("Startfrm").begin.Click();
    auto& form = failing.Get<WorkArea1>("WorkArea1");
    dynamic_cast<forms::Command&>(*form.Find("SSCommand11(9)")).Click();
    failing.dialogs.ExpectNote(kBegin, kJobReminder);
    form.names.new_blank.Click();
    form.names.name.Type("Bob");
    form.document.text.Type("Precious");
    text_size = form.document.Bytes().size();
    begin();
    failing.dialogs.ExpectError("Not Saved", told + "\nIt is still on the screen.");
    form.document.save.Click();
    EXPECT_TRUE(form.document.unsaved());
    EXPECT_EQ(richtext::PlainText(form.document.text.document()), "Precious");
    files.Recover();
    files.AllowBytes(1u << 20);
    files.MakeReadOnly(false);
    EXPECT_EQ(failing.temporary.Read("JobHold.Fl5"), list);
    EXPECT_THAT(failing.temporary.Names(), Not(Contains("Bob.Fl5")));
  };
  save(
      "read-only", [&] { files.MakeReadOnly(); },
      "The text could not be saved: the disk is read-only.");
  save(
      "no room for the text", [&] { files.AllowBytes(3); },
      "The text could not be saved: the disk is full.");
  save(
      "no room for the list", [&] { files.AllowBytes(text_size + 3); },
      "The list of names could not be saved: the disk is full.");
  save(
      "the list can't be read",
      [&] { files.FailWhen([&](int) { return files.log().back() == "read"; }); },
      "The list of names could not be saved: the disk reported an error.");
}

TEST_F(ArchiveTest, CopiesAreFrozenDatedListedAndDeleted) {
  rig.temporary.Write("EmployPolicy36.Fl2", Rtf("Phones"));
  rig.temporary.Write("EmployPolicy10.Fl2", Rtf("Contract"));
  Open();
  Press("SSCommand11(4)");
  ExpectArchived("Cell Phone Use Policy Mar-09-26");
  Archive("SSCommand16(3)");
  Press("SSCommand11(2)");
  ExpectArchived("Independant Contract Agreeme Mar-09-26");
  Archive("SSCommand14(10)");
  EXPECT_EQ(rig.temporary.Read("ArchiveHold.Fla"),
            testing::FileOf(testing::ReadFormatExample("archivehold.md")));
  EXPECT_EQ(rig.temporary.Read("Cell Phone Use Policy Mar-09-26.Fla"), Rtf("Phones"));

  rig.ClickMenu("mOArchiveV");
  EXPECT_EQ(hub().help_context(), 1005);
  EXPECT_EQ(view().heading.caption(), "There are 2 Entries - Archive Documents");
  EXPECT_THAT(Listed(), ElementsAre("Cell Phone Use Policy Mar-09-26",
                                    "Independant Contract Agreeme Mar-09-26"));
  names().list.Pick(0);
  EXPECT_EQ(view().heading.caption(),
            "Archive Document/Date of Archive:  Cell Phone Use Policy Mar-09-26");
  EXPECT_EQ(Shown(), "Phones");
  view().text.Type("x");
  view().text.Erase({{0, 0}, {0, 3}});
  EXPECT_EQ(Shown(), "Phones");
  const auto enabled = [&](const char* entry) { return hub().menus().Find(entry)->enabled(); };
  for (const char* dead : {"mOS", "mOFont", "mOSpell", "mOThes", "mOArchive", "mOArchiveV"}) {
    EXPECT_FALSE(enabled(dead)) << dead;
  }
  for (const char* alive : {"mOClip", "mOP"}) EXPECT_TRUE(enabled(alive)) << alive;

  for (int left : {1, 0}) {
    names().list.Pick(0);
    ExpectDeletion(names().list.text(), Answer::kYes);
    names().remove.Click();
    EXPECT_EQ(Listed().size(), static_cast<std::size_t>(left));
  }
  EXPECT_FALSE(rig.folder.Exists("ArchiveHold.Fla"));
  EXPECT_FALSE(rig.folder.Exists("Cell Phone Use Policy Mar-09-26.Fla"));
  view().exit.Click();
  EXPECT_FALSE(names().panel.visible());
}

TEST_F(ArchiveTest, ACopyOfTheSameNameIsReplacedOnlyOnYes) {
  const std::string name = ArchiveName("Mutual Non-Disclosure Agreement", rig.clock.Today());
  EXPECT_EQ(name, "Mutual Non-Disclosure Agreem Mar-09-26");
  rig.temporary.Write("EmployPolicy13.Fl2", Rtf("Later"));
  const std::string list = "\"" + name + ".Fla\"\r\n";
  Open();
  Press("SSCommand14(13)");
  const auto archive = [&](Answer answer) {
    ExpectArchiveQuestion(name, Answer::kYes);
    rig.dialogs.Expect(
        {"Replace Existing Archive File?",
         "File by Same Name and Date [ " + name + " ] already Exists!\nDo you want to Replace it?",
         forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
        answer);
    if (answer == Answer::kYes) {
      rig.dialogs.ExpectNote("Archive File Save", "Archived File Has Been Created.");
    }
    rig.ClickMenu("mOArchive");
  };
  rig.temporary.Write("ArchiveHold.Fla", list);
  rig.temporary.Write(name + ".Fla", Rtf("Earlier"));
  view().text.Type("Even ");
  archive(Answer::kNo);
  EXPECT_EQ(Stored(name + ".Fla"), "Earlier");
  archive(Answer::kYes);
  EXPECT_EQ(Stored(name + ".Fla"), "Even Later");
  EXPECT_EQ(rig.temporary.Read("ArchiveHold.Fla"), list);
  EXPECT_TRUE(view().unsaved()) << "the document itself isn't saved by it";

  rig.temporary.Remove("ArchiveHold.Fla");  // a copy that lost its entry is asked for, and listed
  archive(Answer::kYes);
  EXPECT_EQ(rig.temporary.Read("ArchiveHold.Fla"), list);
}

TEST_F(ArchiveTest, WhatHasNoTextOrNoNameIsNotArchived) {
  Open();
  Press("SSCommand14(0)");
  rig.dialogs.ExpectWarning(
      "Archive Select",
      "Appropriate Document (Document, Form, Policy, etc.) Is NOT Currently Displayed!");
  rig.ClickMenu("mOArchive");
  view().text.Type("  ");
  ExpectArchiveQuestion("Commission Agreement Mar-09-26", Answer::kCancel);
  rig.ClickMenu("mOArchive");
  ExpectSaveQuestion(Answer::kNo);
  Press("SSCommand11(9)");
  BeginBlank("", "Words");
  rig.dialogs.ExpectWarning("Archive Select", "Appropriate Form Name is Missing!");
  rig.ClickMenu("mOArchive");
  EXPECT_THAT(rig.temporary.Names(), Not(Contains("ArchiveHold.Fla")));
}

}  // namespace
}  // namespace tarnwell::workarea
