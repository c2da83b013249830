#include <gtest/gtest.h>

#include "forms/form_names.h"
#include "planner/zcalandar1.h"
#include "proofing/vsspell1.h"
#include "support/program_rig.h"

namespace tarnwell::planner {
namespace {

class PlannerSpellingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.Start();
    rig.navigator().Show(forms::form_names::kZcalandar1);
  }
  Zcalandar1& form() { return rig.Get<Zcalandar1>("Zcalandar1"); }
  proofing::VSSpell1& dialogue() { return rig.Get<proofing::VSSpell1>("VSSpell1"); }
  void ExpectChanged() {
    rig.dialogs.ExpectNote(
        "Spelling Check",
        "Spelling Check has been canceled or has reached the end of your entries");
  }

  testing::ProgramRig rig;
};

TEST_F(PlannerSpellingTest, EachRowsTextIsCheckedWithItsRowInHand) {
  rig.speller.misspelled = {{"Dentst", {"Dentist"}}, {"aaa", {"abc"}}, {"teh", {}}};
  form().entries[0].Type("Call teh bank");
  form().times[1].Type("aaa");  // times aren't checked
  form().entries[12].Type("Dentst");
  rig.loop.during_modal = [this] {
    EXPECT_EQ(form().status(), "Spelling Check");
    EXPECT_TRUE(form().entries[12].marked());
    dialogue().change.Click();
  };
  ExpectChanged();
  form().check_spelling.Click();
  EXPECT_EQ(form().entries[0].text(), "Call the bank");
  EXPECT_EQ(form().times[1].text(), "aaa");
  EXPECT_EQ(form().entries[12].text(), "Dentist");
  EXPECT_EQ(form().status(), "2 words corrected");
}

TEST_F(PlannerSpellingTest, OnlyAReplacementMakesTheDayUnsaved) {
  rig.speller.misspelled = {{"Dentst", {"Dentist"}}};
  form().entries[0].Type("Dentst");
  rig.dialogs.ExpectNote("Save File Command", "Entries Have Been Time Sorted and File Saved.");
  form().save.Click();

  rig.loop.during_modal = [this] { dialogue().ignore.Click(); };
  rig.dialogs.ExpectNote("Spelling Check",
                         "Spelling Check did not change or did not find any misspelled words!");
  rig.ClickMenu("mOSpell");
  form().exit.Click();  // nothing is unsaved, so nothing is asked
  ASSERT_EQ(rig.top(), "Startfrm");

  rig.navigator().Show(forms::form_names::kZcalandar1);
  rig.loop.during_modal = [this] { dialogue().change.Click(); };
  ExpectChanged();
  rig.ClickMenu("mOSpell");
  rig.dialogs.ExpectYesNoCancel("Daily Planner", "Save changes/entries before exiting?",
                                forms::Answer::kNo);
  form().exit.Click();
}

TEST_F(PlannerSpellingTest, ACorrectedRowIsCutToWhatCanBeTyped) {
  rig.speller.misspelled = {{"alot", {}}, {"asthe", {}}};
  form().entries[0].Type(std::string(38, 'x') + " alot");
  form().entries[1].Type(std::string(39, 'x') + " asthe");
  ExpectChanged();
  form().check_spelling.Click();
  EXPECT_EQ(form().entries[0].text(), std::string(38, 'x') + " a lot");
  EXPECT_EQ(form().entries[1].text(), std::string(39, 'x') + " as th");
}

TEST_F(PlannerSpellingTest, WithoutADictionaryThePlannerStillChecks) {
  rig.speller.installed = false;
  form().entries[0].Type("Call Annn");
  rig.dialogs.ExpectNote("Spell Check",
                         "There is no dictionary of American English on this computer.\n"
                         "Only frequent slips of the typing are corrected.");
  rig.dialogs.ExpectNote("Spelling Check",
                         "Spelling Check did not change or did not find any misspelled words!");
  form().check_spelling.Click();
}

}  // namespace
}  // namespace tarnwell::planner
