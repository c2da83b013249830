#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell::workarea {
namespace {

using ::testing::ElementsAre;

std::string PlainRtf(const std::string& text) { return "{\\rtf1\\ansi\\pard " + text + "\\par}"; }

class DocumentPrintingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    Press("SSCommand11(2)");
  }
  void Write(int number, const std::string& text) {
    rig.temporary.Write("EmployPolicy" + std::to_string(number) + ".Fl2", PlainRtf(text));
  }
  WorkArea1& hub() { return rig.Get<WorkArea1>("WorkArea1"); }
  void Press(std::string_view name) { dynamic_cast<forms::Command&>(*hub().Find(name)).Click(); }

  // Of each page, its texts in their order, blanks left out.
  std::vector<std::string> Printed() {
    hub().printing.print.print.Click();
    std::vector<std::string> pages;
    for (const forms::Page& page : rig.pages.printed.back().pages) {
      std::string all;
      for (const forms::Mark& mark : page) {
        const auto* text = std::get_if<forms::PlacedText>(&mark);
        if (text && text->text.find_first_not_of(' ') != std::string::npos) {
          all += (all.empty() ? "" : " ") + text->text;
        }
      }
      pages.push_back(all);
    }
    return pages;
  }
  int TopOfFirstText() {
    for (const forms::Mark& mark : rig.pages.printed.back().pages.at(0)) {
      if (const auto* text = std::get_if<forms::PlacedText>(&mark)) return text->y;
    }
    return -1;
  }

  testing::ProgramRig rig;
};

TEST_F(DocumentPrintingTest, AllDocumentsArePrintedInTheOrderOfTheirNumbers) {
  for (int number = 0; number <= 47; ++number) Write(number, "Text" + std::to_string(number));
  Write(3, "  \\par ");
  rig.temporary.Write("EmployPolicy20.Fl2", "");
  ASSERT_TRUE(rig.folder.Delete("EmployPolicy31.Fl2"));
  std::vector<int> progress;
  rig.loop.on_yield = [&] {
    EXPECT_TRUE(hub().printing.all_panel.visible());
    EXPECT_TRUE(hub().busy());
    hub().main_buttons[parts::kEmployeeData].Click();  // too early: nothing happens
    hub().PressEscape();
    progress.push_back(hub().printing.all_progress.value());
  };
  rig.ClickMenu("mOPAllB");
  EXPECT_EQ(progress.size(), 47u);
  EXPECT_EQ(progress.back(), 46);
  EXPECT_FALSE(hub().printing.all_panel.visible());
  EXPECT_FALSE(hub().busy());
  EXPECT_EQ(hub().main_buttons.selected(), parts::kCompanyData);
  EXPECT_FALSE(hub().areas.visible());

  std::vector<std::string> expected;
  for (int number = 0; number <= 46; ++number) {
    if (number != 3 && number != 20 && number != 31) {
      expected.push_back("Text" + std::to_string(number));
    }
  }
  EXPECT_EQ(Printed(), expected);
  EXPECT_EQ(TopOfFirstText(), 750);

  hub().printing.print.close.Click();
  EXPECT_TRUE(hub().areas.visible());
}

TEST_F(DocumentPrintingTest, ThePlainFormRunsOnOverTheDocuments) {
  Write(0, "First");
  Write(46, "Last");
  rig.ClickMenu("mOPAll");
  EXPECT_THAT(Printed(), ElementsAre("First Last"));
}

TEST_F(DocumentPrintingTest, WithoutDocumentsThereIsNothingToPrint) {
  for (const char* entry : {"mOPAll", "mOPAllB"}) {
    rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
    rig.ClickMenu(entry);
    EXPECT_FALSE(hub().printing.print.is_open());
    EXPECT_TRUE(hub().areas.visible());
  }
}

TEST_F(DocumentPrintingTest, WhatCantBeReadIsNamedInsteadOfPrinted) {
  for (const char* name : {"EmployPolicy5.Fl2", "EmployPolicy46.Fl2", "EmployComment0.Fl2"}) {
    std::filesystem::create_directory(rig.temporary.path() + "/" + name);
  }
  const std::string reason = ": something else has the name of its file";
  const auto expect_names = [&] {
    rig.dialogs.ExpectError("Can't Be Read",
                            "These documents are not printed:\nEmployment Agreement" + reason +
                                "\nDocument 46" + reason);
  };
  expect_names();
  rig.ClickMenu("mOPAll");
  EXPECT_FALSE(hub().printing.print.is_open());
  Write(0, "First");
  expect_names();
  rig.ClickMenu("mOPAll");
  hub().printing.print.Rebuild();  // told once
  EXPECT_THAT(Printed(), ElementsAre("First"));
  hub().printing.print.Close();

  Press("SSCommand14(0)");
  hub().document.print_options.Click();
  rig.dialogs.ExpectError(
      "Can't Be Read", "This text can't be read" + reason + ".\nNothing will be written over it.");
  hub().printing.texts[kCommentsText].Check(true);
  EXPECT_FALSE(hub().printing.texts[kCommentsText].checked());
}

TEST_F(DocumentPrintingTest, TheDocumentOnShowIsPrintedAsItStandsWithTheTextsTicked) {
  rig.temporary.Write("EmployComment0.Fl2", PlainRtf("Remarks"));
  Press("SSCommand14(0)");
  rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  hub().document.print_options.Click();
  EXPECT_TRUE(hub().areas.visible());

  hub().document.text.Type("Unsaved");
  hub().document.print_options.Click();
  EXPECT_FALSE(hub().areas.visible());
  EXPECT_THAT(Printed(), ElementsAre("Unsaved Printed:  March 9, 2026"));

  auto& texts = hub().printing.texts;
  texts[kCommentsText].Check(true);
  EXPECT_THAT(Printed(), ElementsAre("Remarks Printed:  March 9, 2026", "Unsaved"));
  texts[kPolicyText].Check(false);
  EXPECT_THAT(Printed(), ElementsAre("Remarks Printed:  March 9, 2026"));
}

TEST_F(DocumentPrintingTest, TickingAnEmptyTextSaysSoAndOnlyTheDisclaimerStaysTicked) {
  Press("SSCommand14(10)");
  hub().document.views.Pick(kCommentsText);
  hub().document.text.Type("Remarks");
  hub().document.print_options.Click();
  auto& texts = hub().printing.texts;
  rig.dialogs.ExpectWarning(
      "Action Taken",
      "No Disclaimer or How to Use entries were found for Independant Contract "
      "Agreement!");
  texts[kDisclaimerText].Check(true);
  EXPECT_TRUE(texts[kDisclaimerText].checked());
  rig.dialogs.ExpectWarning("Policies and Procedures",
                            "No Document/Policy was found for Independant Contract Agreement!");
  texts[kPolicyText].Check(true);
  EXPECT_FALSE(texts[kPolicyText].checked());
}

}  // namespace
}  // namespace tarnwell::workarea
