// The way between the main screens, and out of the program.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "forms/form_names.h"
#include "parts/main_buttons.h"
#include "planner/zcalandar1.h"
#include "reference/infoadv.h"
#include "reference/toolsandinfo1.h"
#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell {
namespace {

using forms::Answer;

class NavigationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    ASSERT_EQ(rig.top(), "WorkArea1");
  }
  workarea::WorkArea1& hub() { return rig.Get<workarea::WorkArea1>("WorkArea1"); }
  reference::ToolsandInfo1& tools() { return rig.Get<reference::ToolsandInfo1>("ToolsandInfo1"); }
  int main_area() { return rig.program->variables().MainArea; }

  testing::ProgramRig rig;
};

TEST_F(NavigationTest, TheHubShowsTheAreaOfItsButton) {
  EXPECT_EQ(hub().main_buttons.selected(), parts::kCompanyData);
  hub().main_buttons[parts::kEmployeeData].Click();
  EXPECT_EQ(hub().area_title.caption(), "Employee Data");
  EXPECT_EQ(hub().main_buttons.selected(), parts::kEmployeeData);
  EXPECT_EQ(main_area(), parts::kEmployeeData);
}

TEST_F(NavigationTest, AScreenAboveTheHubHandsOverToAnyOther) {
  hub().main_buttons[parts::kToolsAndProgramInformation].Click();
  ASSERT_EQ(rig.top(), "ToolsandInfo1");
  tools().main_buttons[parts::kToolsAndProgramInformation].Click();  // its own
  EXPECT_EQ(rig.top(), "ToolsandInfo1");

  tools().main_buttons[parts::kInformationAdvisor].Click();
  EXPECT_EQ(rig.top(), "InfoAdv");
  EXPECT_EQ(rig.navigator().Find("ToolsandInfo1"), nullptr);

  rig.ClickMenu("mOTab(3)");
  EXPECT_EQ(rig.top(), "ToolsandInfo1");
  rig.ClickMenu("mOTab(1)");
  EXPECT_EQ(rig.top(), "WorkArea1");
  EXPECT_EQ(hub().area_title.caption(), "Employee Data");
  EXPECT_FALSE(rig.navigator().ended());
}

TEST_F(NavigationTest, TheMenusOfTheScreensAboveListTheFourOthers) {
  const auto captions = [&] {
    std::string text;
    for (const auto& item : rig.navigator().top()->menus().items()[0]->items()) {
      text += item->caption() + "|";
    }
    return text;
  };
  hub().main_buttons[parts::kToolsAndProgramInformation].Click();
  EXPECT_EQ(captions(), "&Comapny Data|&Employee Data|&Information Advisor|&Exit Program|");
  rig.ClickMenu("mOTab(2)");
  EXPECT_EQ(captions(),
            "&Company Data|&Employee Data|&Tools and Program Information|&Exit Program|");
}

TEST_F(NavigationTest, ClosingAScreenAboveTheHubByItsBoxEndsTheProgram) {
  hub().main_buttons[parts::kInformationAdvisor].Click();
  rig.CloseWindow();
  EXPECT_TRUE(rig.navigator().ended());
}

TEST_F(NavigationTest, ClosingTheHubByItsBoxLeadsBackToTheStartScreen) {
  rig.CloseWindow();
  EXPECT_EQ(rig.top(), "Startfrm");
  EXPECT_FALSE(rig.navigator().ended());
}

TEST_F(NavigationTest, ExitAsksAndNoOrCancelReturnsToWhatWasOnShow) {
  hub().main_buttons[parts::kEmployeeData].Click();
  for (Answer answer : {Answer::kNo, Answer::kCancel}) {
    rig.dialogs.ExpectYesNoCancel("Exit", "Exit Tarnwell?", answer);
    hub().main_buttons[parts::kExitProgram].Click();
    EXPECT_EQ(hub().main_buttons.selected(), parts::kEmployeeData);
    EXPECT_EQ(main_area(), parts::kEmployeeData);
  }
  hub().main_buttons[parts::kToolsAndProgramInformation].Click();
  rig.dialogs.ExpectYesNoCancel("Exit", "Exit Tarnwell?", Answer::kNo);
  tools().main_buttons[parts::kExitProgram].Click();
  EXPECT_EQ(rig.top(), "ToolsandInfo1");
  rig.dialogs.ExpectYesNoCancel("Exit", "Exit Tarnwell?", Answer::kYes);
  tools().main_buttons[parts::kExitProgram].Click();
  EXPECT_TRUE(rig.navigator().ended());
  tools().main_buttons[parts::kExitProgram].Click();  // a double click's second: no further box
}

TEST_F(NavigationTest, ThePlannerReturnsToTheScreenThatOpenedIt) {
  hub().main_buttons[parts::kToolsAndProgramInformation].Click();
  tools().planner.Click();
  ASSERT_EQ(rig.top(), "Zcalandar1");
  tools().main_buttons[parts::kCompanyData].Click();  // covered by the planner
  EXPECT_EQ(rig.top(), "Zcalandar1");
  rig.navigator().top()->PressEscape();
  EXPECT_EQ(rig.top(), "ToolsandInfo1");
}

TEST_F(NavigationTest, EachScreenHasItsHelp) {
  EXPECT_EQ(hub().help_context(), 2009);
  hub().main_buttons[parts::kToolsAndProgramInformation].Click();
  EXPECT_EQ(tools().help_context(), 3014);
  tools().main_buttons[parts::kInformationAdvisor].Click();
  EXPECT_EQ(rig.navigator().top()->help_context(), 3066);
}

TEST_F(NavigationTest, NoScreenHasTwoControlsOfOneName) {
  for (const std::string& name : rig.navigator().Names()) {
    if (name == forms::form_names::kSplash1) continue;  // it goes by itself
    rig.navigator().Show(name);
    std::set<std::string> names;
    for (const forms::Control* control : rig.Get<forms::Form>(name).AllControls()) {
      EXPECT_TRUE(names.insert(control->name()).second) << name << ": " << control->name();
    }
    EXPECT_FALSE(names.empty()) << name;
  }
}

}  // namespace
}  // namespace tarnwell
