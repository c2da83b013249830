#include "workarea/workarea1.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "proofing/vsspell1.h"
#include "proofing/vsthesaurus1.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "shell/startfrm.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/program_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;
using ::testing::ElementsAre;

constexpr const char* kSaveTitle = "Save Changes?";
constexpr const char* kSaveText = "Save changes/entries before next action?";
constexpr const char* kSaved = "File Save Command";
constexpr const char* kTemplateQuestion =
    "The program has detected an existing Agreement/Doc.\n"
    "If you insert template and save file the existing file will be overwritten!\n"
    "Insert new Template?";
constexpr const char* kPlain = R"({\rtf1\ansi\deff0{\fonttbl{\f0 Times New Roman;}}\pard )";

std::string Rtf(const std::string& text) { return kPlain + text + "\\par}\r\n"; }

class WorkArea1Test : public ::testing::Test {
 protected:
  void SetUp() override { rig.temporary.Write("DRPln1.Fl2", Rtf("Our plan")); }
  void Open() {
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    ASSERT_EQ(rig.top(), "WorkArea1");
  }
  WorkArea1& hub() { return rig.Get<WorkArea1>("WorkArea1"); }
  forms::Command& Button(std::string_view name) {
    return dynamic_cast<forms::Command&>(*hub().Find(name));
  }
  void Press(std::string_view name) { Button(name).Click(); }
  std::string Shown() { return richtext::PlainText(hub().document.text.document()); }
  std::string Stored(const std::string& file) {
    return richtext::PlainText(richtext::ReadRichText(rig.temporary.Read(file)));
  }
  void ExpectSaveQuestion(Answer answer) { rig.dialogs.Expect(kSaveTitle, kSaveText, answer); }
  void ExpectSaved() {
    rig.dialogs.Expect(kSaved, "Document, Form, Policy, etc. Has Been Saved/Updated!");
  }

  testing::ProgramRig rig;
};

TEST_F(WorkArea1Test, ADocumentIsStartedFromItsTemplateSavedAndFoundAgain) {
  rig.temporary.Write("EmployPolicy5.Fl1", Rtf("This agreement"));
  Open();
  Press("SSCommand14(5)");
  EXPECT_TRUE(Button("SSCommand14(5)").selected());
  EXPECT_EQ(hub().document.heading.caption(), " Document: Employment Agreement");
  EXPECT_EQ(Shown(), "");

  hub().document.insert_template.Click();
  EXPECT_EQ(Shown(), "This agreement");
  EXPECT_FALSE(rig.folder.Exists("EmployPolicy5.Fl2"));
  ExpectSaved();
  hub().document.save.Click();
  EXPECT_EQ(rig.temporary.Read("EmployPolicy5.Fl2"), Rtf("This agreement"));

  hub().document.text.Type("Signed: ");
  ExpectSaved();
  hub().document.save.Click();
  hub().document.exit.Click();
  EXPECT_EQ(Shown(), "");
  EXPECT_FALSE(Button("SSCommand14(5)").selected());
  EXPECT_FALSE(hub().document.save.enabled());

  Press("SSCommand14(5)");
  EXPECT_EQ(Shown(), "Signed: This agreement");
}

TEST_F(WorkArea1Test, ATemplateReplacesATextOnlyOnYes) {
  rig.temporary.Write("EmployPolicy0.Fl1", Rtf("Template"));
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Mine"));
  Open();
  Press("SSCommand14(0)");
  for (const Answer answer : {Answer::kNo, Answer::kCancel}) {
    rig.dialogs.Expect("Insert Template", kTemplateQuestion, answer);
    hub().document.insert_template.Click();
    EXPECT_EQ(Shown(), "Mine");
    EXPECT_FALSE(hub().document.unsaved());
  }
  EXPECT_EQ(rig.dialogs.last.default_button, 2);
  rig.dialogs.Expect("Insert Template", kTemplateQuestion, Answer::kYes);
  hub().document.insert_template.Click();
  EXPECT_EQ(Shown(), "Template");
  EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "Mine");
  EXPECT_TRUE(hub().document.unsaved());
}

TEST_F(WorkArea1Test, EveryWayOutOfAnUnsavedTextAsksToSaveIt) {
  Open();
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"another document", [&] { Press("SSCommand14(1)"); }},
      {"another area", [&] { Press("SSCommand11(4)"); }},
      {"another text", [&] { hub().document.views.Pick(kCommentsText); }},
      {"exit", [&] { hub().document.exit.Click(); }},
      {"a main button", [&] { hub().main_buttons[forms::kEmployeeData].Click(); }},
      {"another screen", [&] { hub().main_buttons[forms::kToolsAndProgramInformation].Click(); }},
  };
  for (const auto& [way, leave] : ways) {
    SCOPED_TRACE(way);
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    Press("SSCommand14(0)");
    hub().document.text.Type("Dropped");
    ExpectSaveQuestion(Answer::kNo);
    leave();
    EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "");

    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    Press("SSCommand14(0)");
    Press("SSCommand14(0)");  // the one in hand: nothing
    hub().document.text.Type("Kept");
    ExpectSaveQuestion(Answer::kYes);
    ExpectSaved();
    leave();
    EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "Kept");
    EXPECT_FALSE(hub().document.unsaved());
    ASSERT_TRUE(rig.folder.Delete("EmployPolicy0.Fl2"));
  }
}

TEST_F(WorkArea1Test, ATextThatCantBeSavedStaysOnTheScreenUntilTheUserGivesItUp) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig full(files);
  full.Start();
  full.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& form = full.Get<WorkArea1>("WorkArea1");
  dynamic_cast<forms::Command&>(*form.Find("SSCommand14(0)")).Click();
  form.document.text.Type("Precious");
  files.MakeReadOnly();
  const auto expect_refusal = [&] {
    full.dialogs.Expect("Not Saved",
                        "The text could not be saved: the disk is read-only.\n"
                        "It is still on the screen.");
  };
  const auto expect_questions = [&](Answer leave) {
    full.dialogs.Expect(kSaveTitle, kSaveText, Answer::kYes);
    expect_refusal();
    full.dialogs.Expect("Not Saved", "Leave without saving?", leave);
  };
  expect_refusal();
  form.document.save.Click();
  for (int i = 0; i < 3; ++i) expect_questions(Answer::kNo);
  form.document.exit.Click();
  form.main_buttons[forms::kEmployeeData].Click();
  form.document.views.Pick(kCommentsText);
  EXPECT_EQ(richtext::PlainText(form.document.text.document()), "Precious");
  EXPECT_TRUE(form.document.unsaved());
  EXPECT_EQ(form.main_buttons.selected(), forms::kCompanyData);
  EXPECT_EQ(form.document.views.chosen(), kPolicyText);
  expect_questions(Answer::kYes);
  form.document.exit.Click();
  EXPECT_TRUE(form.document.text.IsBlank());
}

TEST_F(WorkArea1Test, WhatCantBeReadIsNamedLockedAndLeftAsItIs) {
  struct {
    const char* file;
    const char* area;
    const char* button;
    int view;
  } const cases[] = {
      {"EmployPolicy0.Fl2", "SSCommand11(2)", "SSCommand14(0)", kPolicyText},
      {"EmployComment0.Fl2", "SSCommand11(2)", "SSCommand14(0)", kCommentsText},
      {"EmployAction1.Fl2", "SSCommand11(2)", "SSCommand14(0)", kDisclaimerText},
      {"DRPln1.Fl2", "SSCommand11(8)", nullptr, kPolicyText},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    rig.temporary.Remove(c.file);
    std::filesystem::create_directory(rig.temporary.path() + "/" + c.file);
    Open();
    Press(c.area);
    if (c.button) Press(c.button);
    auto& view = hub().document;
    view.views.Pick(c.view);
    EXPECT_EQ(Shown(),
              "This text can't be read: something else has the name of its file.\n"
              "Nothing will be written over it.");
    EXPECT_TRUE(view.text.locked());
    for (const forms::Command* command :
         {&view.save, &view.insert_template, &view.print_options, &view.tools.find_mark}) {
      EXPECT_FALSE(command->enabled()) << command->name();
    }
    view.text.Type("x");
    EXPECT_FALSE(view.unsaved());
    view.exit.Click();
    EXPECT_EQ(Shown(), "");
  }
}

TEST_F(WorkArea1Test, WithoutATemplateTheTextStaysAndTheUserIsTold) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Mine"));
  std::filesystem::create_directory(rig.temporary.path() + "/EmployPolicy1.Fl1");
  Open();
  Press("SSCommand14(0)");
  hub().document.text.Type("Still ");
  ExpectSaved();
  hub().document.save.Click();
  rig.dialogs.Expect("Insert Template", "No template is supplied for this document.");
  hub().document.insert_template.Click();
  EXPECT_EQ(Shown(), "Still Mine");
  EXPECT_FALSE(hub().document.unsaved());
  EXPECT_TRUE(hub().document.text.CanUndo());

  Press("SSCommand14(1)");
  rig.dialogs.Expect("Can't Be Read",
                     "The template can't be read: something else has the name of its file.\n"
                     "Nothing will be written over it.");
  hub().document.insert_template.Click();
  EXPECT_FALSE(hub().document.unsaved());
}

TEST_F(WorkArea1Test, ATextStaysUnsavedAsLongAsItIsOnShow) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Mine"));
  Open();
  Press("SSCommand14(0)");
  hub().document.text.Type("Edits of ");
  const auto expect_edits = [&] {
    EXPECT_EQ(Shown(), "Edits of Mine");
    EXPECT_TRUE(hub().document.unsaved());
  };
  ExpectSaveQuestion(Answer::kNo);
  rig.ClickMenu("mOPAll");
  hub().printing.print.commands[2].Click();
  expect_edits();
  for (const Answer answer : {Answer::kNo, Answer::kCancel}) {
    ExpectSaveQuestion(Answer::kNo);
    const forms::MessageBox exit_box = forms::ExitBox();
    rig.dialogs.Expect(exit_box.title, exit_box.text, answer);
    hub().main_buttons[forms::kExitProgram].Click();
    expect_edits();
  }
  ExpectSaveQuestion(Answer::kYes);
  ExpectSaved();
  hub().document.exit.Click();
  EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "Edits of Mine");
}

TEST_F(WorkArea1Test, EachTextOfADocumentHasItsFile) {
  rig.temporary.Write("EmployAction1.Fl2", Rtf("< Disclaimer"));
  rig.temporary.Write("EmployComment35.Fl2", Rtf("Old remark"));
  Open();
  Press("SSCommand11(4)");
  Press("SSCommand16(2)");
  EXPECT_EQ(hub().document.heading.caption(), " Policy: Company Policy Manual");
  hub().document.text.Type("Manual");
  ExpectSaved();
  hub().document.save.Click();

  hub().document.views.Pick(kCommentsText);
  EXPECT_EQ(Shown(), "Old remark");
  EXPECT_FALSE(hub().document.insert_template.enabled());
  hub().document.text.Type("New and o");
  rig.dialogs.Expect(kSaved, "File Has Been Saved/Updated!");
  hub().document.save.Click();
  EXPECT_EQ(Stored("EmployComment35.Fl2"), "New and oOld remark");

  hub().document.views.Pick(kDisclaimerText);
  EXPECT_EQ(Shown(), "< Disclaimer");
  EXPECT_TRUE(hub().document.text.locked());
  EXPECT_FALSE(hub().document.save.enabled());
  hub().document.tools.find_mark.Click();
  EXPECT_EQ(hub().document.text.SelectedText(), "<");

  Press("SSCommand16(3)");  // the view stays
  EXPECT_EQ(Shown(), "< Disclaimer");
  hub().document.views.Pick(kPolicyText);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(Stored("EmployPolicy35.Fl2"), "Manual");
}

TEST_F(WorkArea1Test, AStatusWordIsStoredAtOnceUnderItsDocument) {
  Open();
  Press("SSCommand14(5)");
  hub().document.status.Pick(2);
  hub().main_buttons[forms::kEmployeeData].Click();
  Press("SSCommand17(0)");
  EXPECT_EQ(hub().document.status.text(), " ");
  rig.dialogs.Expect("Safeguard Not Being Implemented",
                     "If this safeguard is not being implemented, be sure and\n"
                     "document in the Action Taken or Comments/Notes\n"
                     "area why it is not being implemented!");
  hub().document.status.Pick(5);
  const auto example = testing::ReadFormatExample("stat1.md");
  std::string stored = rig.temporary.Read("Stat1.Fil");
  EXPECT_EQ(stored, testing::FileOf(example));

  Open();
  Press("SSCommand14(5)");
  EXPECT_EQ(hub().document.status.text(), "Working");
  Press("SSCommand14(6)");
  EXPECT_EQ(hub().document.status.text(), " ");
}

TEST_F(WorkArea1Test, AStatusThatCantBeStoredOrReadIsTold) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig failing(files);
  const auto open = [&]() -> DocumentView& {
    failing.Start();
    failing.Get<shell::Startfrm>("Startfrm").begin.Click();
    auto& form = failing.Get<WorkArea1>("WorkArea1");
    dynamic_cast<forms::Command&>(*form.Find("SSCommand14(0)")).Click();
    return form.document;
  };
  DocumentView& view = open();
  view.status.Pick(2);
  files.MakeReadOnly();
  failing.dialogs.Expect("Not Saved",
                         "The status could not be saved: the disk is read-only.\n"
                         "The one before stays.");
  view.status.Pick(3);
  EXPECT_EQ(view.status.text(), "Working");

  files.MakeReadOnly(false);
  const std::string path = failing.temporary.path() + "/Stat1.Fil";
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  DocumentView& locked = open();
  EXPECT_EQ(locked.status.text(), "Can't be read");
  EXPECT_FALSE(locked.status.enabled());
  EXPECT_EQ(failing.navigator().top()->status(),
            "The status of the documents can't be read: something else has the name of its file.");
}

TEST_F(WorkArea1Test, APanelColorIsStoredWithTheTextOrOnTheWayOut) {
  constexpr forms::Color kBlue = 0xC08040;
  Open();
  const auto choose = [&] {
    rig.dialogs.Expect("Panel Color",
                       "Select New Color or Use System Default Color?\n"
                       "Yes = Color Selection Panel will appear.\n"
                       "No = Current System Default Color will be selected.",
                       Answer::kYes);
    rig.dialogs.ExpectColor(kBlue);
    rig.ClickMenu("mOC");
    EXPECT_EQ(hub().colors.panel(), kBlue);
  };
  const auto stored = [&] {
    return settings::ReadPanelColor(rig.folder, settings::PanelColor::kWorkArea).color();
  };
  const auto leave = [&](Answer answer) {
    rig.dialogs.Expect("Color Changes", "Save changes made to Panel and or Text Color?", answer);
    hub().main_buttons[forms::kToolsAndProgramInformation].Click();
    EXPECT_EQ(rig.top(), "ToolsandInfo1");
  };
  choose();
  leave(Answer::kNo);
  EXPECT_EQ(hub().colors.panel(), std::nullopt);
  EXPECT_EQ(stored(), std::nullopt);

  Open();
  choose();
  leave(Answer::kYes);
  EXPECT_EQ(stored(), kBlue);

  settings::WritePanelColor(rig.folder, settings::PanelColor::kWorkArea, {});
  Open();
  choose();
  Press("SSCommand14(0)");
  ExpectSaved();
  hub().document.save.Click();
  EXPECT_EQ(stored(), kBlue);
  EXPECT_FALSE(hub().colors.changed());
}

TEST_F(WorkArea1Test, TheRecoveryPlanIsExplainedUntilThereIsOne) {
  rig.temporary.Write("DRPln1.Fl2", "");
  rig.temporary.Write("Misc60.Fl1", Rtf("About plans"));
  rig.temporary.Write("DRPln1.Fl1", Rtf("Sample plan"));
  Open();
  const auto enter = [&] { Press("SSCommand11(8)"); };
  const std::string information =
      "In response to a request from a user, we have included a copy of a sample Disaster Recovery "
      "Plan. \nThis plan is for a larger organization and may or may not be applicable to your "
      "organization.\nHopefully, it will give you some ideas on how to address disaster recovery "
      "in your situation.\nIf you are a small provider then much of this plan can be cut down or "
      "covered in a few sentences instead of the lists and so forth as contained in this plan.\n"
      "You can use this template to make changes in this program and save your changes, etc. or "
      "you can copy and paste this document into your word processor and work on it there.";
  rig.dialogs.Expect("Disaster Recovery Plan Information", information);
  enter();
  EXPECT_EQ(Shown(), "About plans");
  EXPECT_FALSE(hub().document.actions.visible());
  const auto save = [&] {
    rig.dialogs.Expect(kSaved, "Disaster Recovery Plan Has Been Saved!");
    hub().document.save.Click();
  };
  save();  // as it stands it is no plan yet
  hub().document.exit.Click();
  rig.dialogs.Expect("Disaster Recovery Plan Information", information);
  enter();
  hub().document.insert_template.Click();  // unasked: there is nothing to lose
  EXPECT_EQ(Shown(), "Sample plan");
  const auto refuse_template = [&] {
    rig.dialogs.Expect("Insert Template",
                       "The program has detected an existing Disaster Recovery Plan.\n"
                       "If you insert template and save file the existing file will be "
                       "overwritten!\nInsert new Template?",
                       Answer::kNo);
    hub().document.insert_template.Click();
  };
  refuse_template();
  save();
  refuse_template();
  EXPECT_EQ(rig.temporary.Read("DRPln1.Fl2"), Rtf("Sample plan"));

  hub().document.exit.Click();
  EXPECT_FALSE(Button("SSCommand11(8)").selected());
  enter();
  EXPECT_EQ(Shown(), "Sample plan");
}

TEST_F(WorkArea1Test, TheSearchGoesFromMarkToMarkAndBeginsAgain) {
  const std::string mark(45, '&');
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("By " + mark + " and\\par the " + mark + " of it"));
  Open();
  Press("SSCommand14(0)");
  auto& text = hub().document.text;
  const auto find = [&] { hub().document.tools.find_mark.Click(); };
  find();
  EXPECT_EQ(text.selection(), (richtext::Range{{0, 3}, {0, 48}}));
  text.Type("Ann Lee");
  find();
  EXPECT_EQ(text.SelectedText(), mark);
  EXPECT_EQ(text.selection().from.paragraph, 1);
  rig.dialogs.Expect("Search Document", "Search has reached the end of the document.");
  find();
  find();
  EXPECT_EQ(text.selection().from.paragraph, 1);
  EXPECT_EQ(Shown(), "By Ann Lee and\nthe " + mark + " of it");
}

TEST_F(WorkArea1Test, EveryMarkIsFoundWhateverIsTypedOverTheOneBefore) {
  std::ifstream supplied(TARNWELL_SOURCE_DIR "/data/EmployPolicy5.Fl1", std::ios::binary);
  rig.temporary.Write("EmployPolicy5.Fl1",
                      std::string(std::istreambuf_iterator<char>(supplied), {}));
  Open();
  Press("SSCommand14(5)");
  auto& view = hub().document;
  for (const std::string typed : {"Lee", "", "One line\nand one more", "x", "<60>"}) {
    SCOPED_TRACE(typed);
    if (!view.text.IsBlank())
      rig.dialogs.Expect("Insert Template", kTemplateQuestion, Answer::kYes);
    view.insert_template.Click();
    int found = 0;
    for (; view.tools.find_mark.Click(), !view.text.selection().empty(); ++found) {
      ASSERT_EQ(view.text.SelectedText(), kInsertionMark);
      if (typed.empty()) {
        view.text.Erase(view.text.selection());
      } else {
        for (const char letter : typed == "<60>" ? std::string(60, 'w') : typed) {
          view.text.Type({&letter, 1});
        }
      }
      if (found == 34) {
        rig.dialogs.Expect("Search Document", "Search has reached the end of the document.");
      }
    }
    EXPECT_EQ(found, 35);
  }
}

TEST_F(WorkArea1Test, FontAndAlignmentChangeTheSelectionAndAreUnsaved) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("One\\par Two"));
  Open();
  Press("SSCommand14(0)");
  auto& view = hub().document;
  EXPECT_EQ(view.tools.alignment.chosen(), 0);
  view.text.MoveSelection({{1, 0}, {1, 3}});
  view.tools.alignment.Pick(1);
  EXPECT_TRUE(view.unsaved());
  rig.dialogs.ExpectFont(forms::Font{.name = "Arial", .size = 14, .bold = true});
  view.tools.font.Click();
  const auto& paragraph = std::get<richtext::Paragraph>(view.text.document().blocks[1]);
  EXPECT_EQ(paragraph.format.alignment, richtext::Alignment::kCenter);
  EXPECT_EQ(paragraph.runs[0].format.font, "Arial");
  EXPECT_EQ(paragraph.runs[0].format.half_points, 28);
  view.text.MoveSelection({{0, 0}, {0, 0}});
  EXPECT_EQ(view.tools.alignment.chosen(), 0);
}

TEST_F(WorkArea1Test, TheSpellingIsCorrectedWhereItStandsInItsFormats) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("We {\\b recieve} a hous\\par and {\\i Hte} end"));
  rig.speller.misspelled = {{"recieve", {}}, {"hous", {"house"}}, {"Hte", {}}};
  Open();
  Press("SSCommand14(0)");
  rig.loop.during_modal = [&] {
    EXPECT_EQ(hub().document.text.SelectedText(), "hous");
    rig.Get<proofing::VSSpell1>("VSSpell1").change.Click();
  };
  rig.dialogs.Expect("Spell Check",
                     "Spell Check has been canceled or has reached the end of your document");
  hub().document.tools.spelling.Click();
  EXPECT_EQ(Shown(), "We receive a house\nand The end");
  EXPECT_EQ(hub().status(), "3 words corrected");
  EXPECT_TRUE(hub().document.unsaved());
  const auto& document = hub().document.text.document();
  EXPECT_TRUE(std::get<richtext::Paragraph>(document.blocks[0]).runs[1].format.bold);
  EXPECT_TRUE(std::get<richtext::Paragraph>(document.blocks[1]).runs[1].format.italic);
}

TEST_F(WorkArea1Test, ASynonymTakesThePlaceOfTheHighlightedWord) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Big, bold"));
  rig.thesaurus.meanings["Big"] = {{"(adj) large", {"large", "huge (similar term)"}}};
  Open();
  Press("SSCommand14(0)");
  rig.dialogs.Expect("Thesaurus", "Please highlight word you desire to look up!");
  hub().document.tools.thesaurus.Click();

  hub().document.text.MoveSelection({{0, 0}, {0, 5}});  // with the comma and the blank
  rig.loop.during_modal = [&] {
    auto& dialogue = rig.Get<proofing::VSThesaurus1>("VSThesaurus1");
    dialogue.synonyms.Pick(1);
    dialogue.replace.Click();
  };
  hub().document.tools.thesaurus.Click();
  EXPECT_EQ(Shown(), "Huge, bold");
  EXPECT_TRUE(hub().document.unsaved());
}

TEST_F(WorkArea1Test, CommandsAndMenusWorkOnlyOnWhatIsOnShow) {
  Open();
  const auto enabled = [&](const char* entry) { return hub().menus().Find(entry)->enabled(); };
  const char* const entries[] = {"mOClip", "mOFont", "mOSpell", "mOThes", "mOP", "mOS"};
  for (const char* entry : entries) EXPECT_FALSE(enabled(entry)) << entry;
  Press("SSCommand14(0)");
  for (const char* entry : entries) EXPECT_TRUE(enabled(entry)) << entry;
  hub().document.views.Pick(kDisclaimerText);
  EXPECT_TRUE(enabled("mOClip"));
  EXPECT_FALSE(enabled("mOFont"));
  EXPECT_FALSE(enabled("mOS"));
}

TEST_F(WorkArea1Test, TheWholeDocumentIsCopiedAsRichText) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("All {\\b of} it"));
  Open();
  Press("SSCommand14(0)");
  hub().document.text.MoveSelection({{0, 0}, {0, 3}});
  rig.dialogs.Expect("Copy Option", "A copy has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOClip");
  EXPECT_EQ(richtext::ReadRichText(rig.clipboard.rich_text), hub().document.text.document());
}

TEST_F(WorkArea1Test, TheHelpFollowsTheArea) {
  Open();
  EXPECT_EQ(hub().help_context(), 3010);
  Press("SSCommand11(8)");
  EXPECT_EQ(hub().help_context(), 3048);
}

}  // namespace
}  // namespace tarnwell::workarea
