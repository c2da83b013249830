#include "workarea/workarea1.h"

#include <gtest/gtest.h>

#include "support/format_page.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;

using WorkArea1Test = WorkAreaTest;

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

TEST_F(WorkArea1Test, TheDateIsTodaysAfterMidnight) {
  Open();
  EXPECT_EQ(hub().date.caption(), "March 9, 2026");
  rig.clock.now.date = text::MakeDate(2026, 3, 10);
  rig.navigator().Show("Zcalandar1");
  rig.navigator().Unload(*rig.navigator().top());
  EXPECT_EQ(hub().date.caption(), "March 10, 2026");
}

TEST_F(WorkArea1Test, ATemplateReplacesATextOnlyOnYes) {
  rig.temporary.Write("EmployPolicy0.Fl1", Rtf("Template"));
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Mine"));
  Open();
  Press("SSCommand14(0)");
  for (const Answer answer : {Answer::kNo, Answer::kCancel}) {
    rig.dialogs.Expect(TemplateQuestion(), answer);
    hub().document.insert_template.Click();
    EXPECT_EQ(Shown(), "Mine");
    EXPECT_FALSE(hub().document.unsaved());
  }
  rig.dialogs.Expect(TemplateQuestion(), Answer::kYes);
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
      {"a main button", [&] { hub().main_buttons[parts::kEmployeeData].Click(); }},
      {"another screen", [&] { hub().main_buttons[parts::kToolsAndProgramInformation].Click(); }},
  };
  for (const auto& [way, leave] : ways) {
    SCOPED_TRACE(way);
    Open();
    Press("SSCommand14(0)");
    hub().document.text.Type("Dropped");
    ExpectSaveQuestion(Answer::kNo);
    leave();
    EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "");

    Open();
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
  hub().printing.print.close.Click();
  expect_edits();
  for (const Answer answer : {Answer::kNo, Answer::kCancel}) {
    ExpectSaveQuestion(Answer::kNo);
    rig.dialogs.ExpectYesNoCancel("Exit", "Exit Tarnwell?", answer);
    hub().main_buttons[parts::kExitProgram].Click();
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
  rig.dialogs.ExpectNote(kSaved, "File Has Been Saved/Updated!");
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
  hub().main_buttons[parts::kEmployeeData].Click();
  Press("SSCommand17(0)");
  EXPECT_EQ(hub().document.status.text(), " ");
  rig.dialogs.ExpectNote("Safeguard Not Being Implemented",
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

TEST_F(WorkArea1Test, APanelColorIsStoredWithTheTextOrOnTheWayOut) {
  constexpr forms::Color kBlue = 0xC08040;
  Open();
  const auto choose = [&] {
    rig.dialogs.ExpectColorQuestion(Answer::kYes);
    rig.dialogs.ExpectColor(kBlue);
    rig.ClickMenu("mOC");
    EXPECT_EQ(hub().colors.panel(), kBlue);
  };
  const auto stored = [&] {
    return settings::ReadPanelColor(rig.folder, settings::PanelColor::kWorkArea).color();
  };
  const auto leave = [&](Answer answer) {
    rig.dialogs.ExpectYesNo("Color Changes", "Save changes made to Panel and or Text Color?",
                            answer);
    hub().main_buttons[parts::kToolsAndProgramInformation].Click();
    EXPECT_EQ(rig.top(), "ToolsandInfo1");
  };
  choose();
  leave(Answer::kNo);
  EXPECT_EQ(hub().colors.panel(), std::nullopt);
  EXPECT_EQ(stored(), std::nullopt);

  Open();
  choose();
  rig.dialogs.ExpectYesNo("Color Changes", "Save changes made to Panel and or Text Color?",
                          Answer::kNo);
  EXPECT_TRUE(rig.CloseWindow());

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
  rig.dialogs.ExpectNote("Disaster Recovery Plan Information", information);
  enter();
  EXPECT_EQ(Shown(), "About plans");
  EXPECT_FALSE(hub().document.actions.visible());
  const auto save = [&] {
    rig.dialogs.ExpectNote(kSaved, "Disaster Recovery Plan Has Been Saved!");
    hub().document.save.Click();
  };
  save();  // as it stands it is no plan yet
  hub().document.exit.Click();
  rig.dialogs.ExpectNote("Disaster Recovery Plan Information", information);
  enter();
  hub().document.insert_template.Click();  // unasked: there is nothing to lose
  EXPECT_EQ(Shown(), "Sample plan");
  const auto refuse_template = [&] {
    rig.dialogs.Expect(TemplateQuestion("Disaster Recovery Plan."), Answer::kNo);
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

TEST_F(WorkArea1Test, AButtonOfAScreenLeavesTheAreaAsItIs) {
  Open();
  hub().main_buttons[parts::kEmployeeData].Click();
  const std::pair<const char*, const char*> screens[] = {{"SSCommand11(14)", "SICKLEAVE1"},
                                                         {"SSCommand11(15)", "Vacation1"}};
  for (const auto& [button, screen] : screens) {
    Button(button).Click();
    EXPECT_EQ(rig.top(), screen);
    EXPECT_TRUE(rig.CloseWindow());
    EXPECT_EQ(rig.top(), "WorkArea1");
    EXPECT_TRUE(Button("SSCommand11(3)").selected() && !Button(button).selected());
  }
}

TEST_F(WorkArea1Test, WithoutAnAreaThereIsNothingToChoose) {
  for (const Area area : {kToDoList, kRecoveryPlan}) {
    Open(area);
    area == kToDoList ? hub().to_do.exit.Click() : hub().document.exit.Click();
    hub().document.views.Pick(kCommentsText);
    hub().document.status.Pick(0);
    EXPECT_FALSE(hub().document.actions.visible() || hub().document.status.visible());
  }
}

TEST_F(WorkArea1Test, TheWholeDocumentIsCopiedAsRichText) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("All {\\b of} it"));
  Open();
  Press("SSCommand14(0)");
  hub().document.text.MoveSelection({{0, 0}, {0, 3}});
  rig.dialogs.ExpectNote("Copy Option", "A copy has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOClip");
  EXPECT_EQ(richtext::ReadRichText(rig.clipboard.rich_text), hub().document.text.document());
}

TEST_F(WorkArea1Test, TheHelpFollowsTheArea) {
  Open(kToDoList);
  EXPECT_EQ(hub().help_context(), 2009);
  Press("SSCommand11(2)");
  EXPECT_EQ(hub().help_context(), 3010);
  Press("SSCommand11(8)");
  EXPECT_EQ(hub().help_context(), 3048);
}

}  // namespace
}  // namespace tarnwell::workarea