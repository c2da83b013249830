#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "workarea/rule_table.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;

class WorksheetsTest : public WorkAreaTest {
 protected:
  WorksheetsPane& pane() { return hub().worksheets; }
  DocumentView& view() { return hub().document; }
  void OpenArea() {
    Open();
    Press("SSCommand11(7)");
  }
  void WriteTitles() {
    rig.temporary.Write("RAList.Fl2", testing::FileOf(testing::ReadFormatExample("ralist.md")));
  }
  forms::TextField& Change(int number) {
    return pane().titles.rows[static_cast<std::size_t>(number) - 1]->change;
  }
};

TEST_F(WorksheetsTest, TitlesAreAddedChangedAndBlanked) {
  OpenArea();
  EXPECT_EQ(hub().help_context(), 5150);
  EXPECT_FALSE(Button("SSCommand12(1)").visible());
  rig.ClickMenu("mORATitle");
  EXPECT_EQ(pane().titles.rows[19]->label.caption(), "Risk Analyis # 20");
  Change(1).Type("Fire Safety and more");  // cut to what the record holds
  EXPECT_EQ(Change(1).text(), "Fire Safety and mo");
  Change(1).Type("Fire Safety");
  Change(3).Type(" ");
  pane().titles.save.Click();
  EXPECT_EQ(rig.temporary.Read("RAList.Fl2"),
            testing::FileOf(testing::ReadFormatExample("ralist.md")));
  EXPECT_EQ(Button("SSCommand12(1)").caption(), "Fire Safety");
  EXPECT_EQ(Button("SSCommand12(1)").tool_tip(), "Fire Safety");
  EXPECT_TRUE(Button("SSCommand12(3)").visible());
  EXPECT_EQ(Button("SSCommand12(3)").caption(), "");

  rig.ClickMenu("mORATitle");
  EXPECT_EQ(pane().titles.rows[0]->current.caption(), "Fire Safety");
  Change(1).Type("R&D");
  pane().titles.exit.Click();
  EXPECT_EQ(Button("SSCommand12(1)").caption(), "Fire Safety");
  rig.ClickMenu("mORATitle");
  Change(1).Type("R&D");
  ExpectSaveQuestion(Answer::kYes);
  hub().main_buttons[parts::kEmployeeData].Click();
  OpenArea();
  EXPECT_EQ(Button("SSCommand12(1)").caption(), "R&&D");
}

TEST_F(WorksheetsTest, AWorksheetIsStartedSavedGivenAStatusAndFoundAgain) {
  WriteTitles();
  rig.temporary.Write("Misc59.Fl1", Rtf("Risks"));
  OpenArea();
  EXPECT_EQ(view().insert_template.caption(), "New Worksheet");
  EXPECT_EQ(view().status_label.caption(), " Compliance Status:");
  Press("SSCommand12(1)");
  EXPECT_EQ(view().heading.caption(), "Company - Additional Docs. - Fire Safety");
  view().insert_template.Click();
  EXPECT_EQ(Shown(), "Risks");
  ExpectSaved();
  view().save.Click();
  EXPECT_EQ(Stored("EmployWksht1.Fl2"), "Risks");
  view().status.Pick(3);
  EXPECT_EQ(rig.temporary.Read("Stat1.Fil").substr(48 * 20, 9), std::string("\x07\0Partial", 9));

  OpenArea();
  Press("SSCommand12(1)");
  EXPECT_EQ(view().status.text(), "Partial");
  rig.dialogs.Expect({"New Worksheet", "Fire Safety worksheet!\nNew Worksheet?",
                      forms::Icon::kExclamation, forms::Buttons::kYesNoCancel, 2},
                     Answer::kNo);
  view().insert_template.Click();
  EXPECT_FALSE(view().unsaved());

  view().text.Erase({{0, 0}, {0, 5}});
  rig.dialogs.ExpectNote(kSaved,
                         "An empty worksheet is not written: what was saved before stays. Its "
                         "compliance status has been cleared.");
  view().save.Click();
  EXPECT_EQ(Stored("EmployWksht1.Fl2"), "Risks");
  EXPECT_EQ(rig.temporary.Read("Stat1.Fil").substr(48 * 20, 2), std::string(2, '\0'));
  EXPECT_EQ(view().status.text(), " ");

  ExpectSaveQuestion(Answer::kNo);
  Press("SSCommand11(2)");
  EXPECT_EQ(view().insert_template.caption(), "&Insert Template");
  EXPECT_EQ(view().status_label.caption(), "Current Status:");
  EXPECT_FALSE(pane().terms.visible());
}

TEST_F(WorksheetsTest, AWorksheetWithATextCanBeReachedWithoutATitle) {
  rig.temporary.Write("EmployWksht20.Fl2", Rtf("Old"));
  OpenArea();
  Press("SSCommand12(20)");
  EXPECT_EQ(Shown(), "Old");
}

TEST_F(WorksheetsTest, TheReferencesShowTheSectionOfTheRow) {
  WriteTitles();
  rig.temporary.Write("Misc61.Fl1",
                      R"({\rtf1 Of encryption and decryption\par Encryption\par x\par})");
  OpenArea();
  Press("SSCommand12(1)");
  view().text.Type("Mine");
  ExpectSaveQuestion(Answer::kYes);
  ExpectSaved();
  pane().references.views.Pick(0);
  EXPECT_FALSE(pane().panel.visible());
  EXPECT_TRUE(view().text.locked());
  EXPECT_FALSE(view().status.visible());
  Press("SSCommand13(8)");
  EXPECT_EQ(view().heading.caption(), "Encryption (A)");
  EXPECT_EQ(view().text.SelectedText(), "Encryption");
  view().exit.Click();
  EXPECT_TRUE(pane().panel.visible() && view().status.visible());
  Press("SSCommand12(1)");
  EXPECT_EQ(Shown(), "Mine");
}

TEST(RuleTableTest, EachRowHasItsSectionInEverySuppliedText) {
  EXPECT_EQ(SafeguardWord(1), "Risk Analysis");
  EXPECT_EQ(SafeguardWord(45), "Documentation");
  for (const int number : {0, 46, 47, 48}) EXPECT_EQ(SafeguardWord(number), "") << number;
  for (const char* file : {"Misc61.Fl1", "Misc62.Fl1", "Misc63.Fl1"}) {
    std::ifstream in(std::string(TARNWELL_SOURCE_DIR "/data/") + file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    std::istringstream lines(richtext::PlainText(richtext::ReadRichText(bytes)));
    std::vector<std::string> paragraphs;
    for (std::string line; std::getline(lines, line);) paragraphs.push_back(line);
    for (const RuleRow& row : RuleRows()) {
      const std::string_view word = SafeguardWord(row.safeguard);
      const int section = FindSection(paragraphs, word);
      ASSERT_GE(section, 0) << file << " " << word;
      EXPECT_EQ(paragraphs[static_cast<std::size_t>(section)], word);
    }
  }
}

TEST_F(WorksheetsTest, TheFirstBoxOfThePrintPanelFollowsWhatIsOnShow) {
  WriteTitles();
  rig.temporary.Write("Misc61.Fl1", Rtf("Rule"));
  rig.temporary.Write("EmployWksht1.Fl2", Rtf("Risks"));
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Terms"));
  Open();
  DocumentPrinting& printing = hub().printing;
  const auto refuse = [&](const char* title, const char* text) {
    view().print_options.Click();
    EXPECT_TRUE(printing.texts[0].visible());
    rig.dialogs.ExpectWarning(title, text);
    printing.first.Check(true);
    EXPECT_FALSE(printing.first.checked());
    printing.print.close.Click();
  };
  Press("SSCommand14(0)");
  refuse("Action Taken", "No Implementation specification is available for Commission Agreement!");
  Press("SSCommand11(7)");
  Press("SSCommand12(1)");
  refuse("Print",
         "Only works with the Implementation specicfication, References in Rule and Additional "
         "Information of this portion of the program!");

  pane().references.views.Pick(0);
  view().print_options.Click();
  EXPECT_EQ(printing.first.caption(), "All Safeguards");
  EXPECT_FALSE(printing.texts[0].visible());
  forms::FontParts larger;
  larger.size = 14;
  rig.dialogs.ExpectFont(larger);
  printing.print.font.Click();
  printing.first.Check(true);
  EXPECT_EQ(printing.print.font_size.caption(), " 10");
  printing.print.print.Click();
  const auto& pages = rig.pages.printed.back().pages;
  EXPECT_EQ(pages.size(), 2u) << "the table and the text";
  const auto has = [&](const char* wanted) {
    return std::ranges::any_of(pages[0], [&](const forms::Mark& mark) {
      const auto* text = std::get_if<forms::PlacedText>(&mark);
      return text && text->text == wanted;
    });
  };
  for (const RuleRow& row : RuleRows()) {
    EXPECT_TRUE(has(std::string(row.section).c_str())) << row.section;
  }
}

TEST_F(WorksheetsTest, OnABadDiskTitlesAndTextsStayOnTheScreen) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig failing(files);
  failing.temporary.Write("RAList.Fl2", testing::FileOf(testing::ReadFormatExample("ralist.md")));
  failing.Start();
  failing.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& form = failing.Get<WorkArea1>("WorkArea1");
  const auto press = [&](const char* name) {
    dynamic_cast<forms::Command&>(*form.Find(name)).Click();
  };
  press("SSCommand11(7)");
  press("SSCommand12(1)");
  form.document.text.Type("Precious");
  files.MakeReadOnly();
  const auto expect_refusal = [&](const char* what) {
    failing.dialogs.ExpectError("Not Saved", std::string(what) +
                                                 " could not be saved: the disk is read-only.\n"
                                                 "It is still on the screen.");
  };
  expect_refusal("The text");
  form.document.save.Click();
  EXPECT_TRUE(form.document.unsaved());
  failing.ClickMenu("mORATitle");
  form.worksheets.titles.rows[1]->change.Type("New");
  expect_refusal("The titles");
  form.worksheets.titles.save.Click();
  EXPECT_TRUE(form.worksheets.titles.panel.visible());
  EXPECT_EQ(form.worksheets.titles.rows[1]->change.text(), "New");
  EXPECT_EQ(form.document.text.IsBlank(), false);

  files.MakeReadOnly(false);
  form.worksheets.titles.save.Click();
  EXPECT_EQ(dynamic_cast<forms::Command&>(*form.Find("SSCommand12(2)")).caption(), "New");
}

}  // namespace
}  // namespace tarnwell::workarea
