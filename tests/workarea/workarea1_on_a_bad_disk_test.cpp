#include <gtest/gtest.h>

#include <filesystem>

#include "support/failing_file_system.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;

using WorkArea1OnABadDiskTest = WorkAreaTest;

TEST_F(WorkArea1OnABadDiskTest, ATextThatCantBeSavedStaysOnTheScreenUntilTheUserGivesItUp) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig full(files);
  full.Start();
  full.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& form = full.Get<WorkArea1>("WorkArea1");
  for (const char* button : {"SSCommand11(2)", "SSCommand14(0)"}) {
    dynamic_cast<forms::Command&>(*form.Find(button)).Click();
  }
  form.document.text.Type("Precious");
  files.MakeReadOnly();
  const auto expect_refusal = [&] {
    full.dialogs.ExpectError("Not Saved",
                             "The text could not be saved: the disk is read-only.\n"
                             "It is still on the screen.");
  };
  const auto expect_questions = [&](Answer leave) {
    full.dialogs.ExpectYesNo(kSaveTitle, kSaveText, Answer::kYes);
    expect_refusal();
    full.dialogs.ExpectLeaveUnsaved(leave);
  };
  expect_refusal();
  form.document.save.Click();
  for (int i = 0; i < 3; ++i) expect_questions(Answer::kNo);
  form.document.exit.Click();
  form.main_buttons[parts::kEmployeeData].Click();
  form.document.views.Pick(kCommentsText);
  EXPECT_EQ(richtext::PlainText(form.document.text.document()), "Precious");
  EXPECT_TRUE(form.document.unsaved());
  EXPECT_EQ(form.main_buttons.selected(), parts::kCompanyData);
  EXPECT_EQ(form.document.views.chosen(), kPolicyText);
  expect_questions(Answer::kYes);
  form.document.exit.Click();
  EXPECT_TRUE(form.document.text.IsBlank());
}

TEST_F(WorkArea1OnABadDiskTest, WhatCantBeReadIsNamedLockedAndLeftAsItIs) {
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

TEST_F(WorkArea1OnABadDiskTest, WithoutATemplateTheTextStaysAndTheUserIsTold) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Mine"));
  std::filesystem::create_directory(rig.temporary.path() + "/EmployPolicy1.Fl1");
  Open();
  Press("SSCommand14(0)");
  hub().document.text.Type("Still ");
  ExpectSaved();
  hub().document.save.Click();
  rig.dialogs.ExpectNote("Insert Template", "No template is supplied for this document.");
  hub().document.insert_template.Click();
  EXPECT_EQ(Shown(), "Still Mine");
  EXPECT_FALSE(hub().document.unsaved());
  EXPECT_TRUE(hub().document.text.CanUndo());

  Press("SSCommand14(1)");
  rig.dialogs.ExpectError("Can't Be Read",
                          "The template can't be read: something else has the name of its file.\n"
                          "Nothing will be written over it.");
  hub().document.insert_template.Click();
  EXPECT_FALSE(hub().document.unsaved());
}

TEST_F(WorkArea1OnABadDiskTest, AStatusThatCantBeStoredOrReadIsTold) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig failing(files);
  const auto open = [&]() -> DocumentView& {
    failing.Start();
    failing.Get<shell::Startfrm>("Startfrm").begin.Click();
    auto& form = failing.Get<WorkArea1>("WorkArea1");
    for (const char* button : {"SSCommand11(2)", "SSCommand14(0)"}) {
      dynamic_cast<forms::Command&>(*form.Find(button)).Click();
    }
    return form.document;
  };
  DocumentView& view = open();
  view.status.Pick(2);
  files.MakeReadOnly();
  failing.dialogs.ExpectError("Not Saved",
                              "The status could not be saved: the disk is read-only.\n"
                              "The one before stays.");
  view.status.Pick(3);
  EXPECT_EQ(view.status.text(), "Working");
  for (const char* document : {"SSCommand14(1)", "SSCommand14(0)"}) {
    dynamic_cast<forms::Command&>(*failing.Get<WorkArea1>("WorkArea1").Find(document)).Click();
  }
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

}  // namespace
}  // namespace tarnwell::workarea
