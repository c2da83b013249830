#include "parts/color_choice.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "parts/grid_background_panel.h"
#include "settings/grid_backgrounds.h"
#include "storage/record_file.h"
#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using forms::Answer;
using forms::Color;
using forms::GridLook;
using forms::kBlack;
using forms::kNeutral;
using forms::kWhite;
using settings::PanelColor;
using settings::StoredColor;

constexpr const char* kConflict =
    "Selected Color would cause a conflict with Text and Background Colors!";

const forms::MessageBox kForAll{"Complete Program Panel Color Update Option",
                                "Save Panel Color Changes for ALL of the Program Functions?",
                                forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2};

class ColorChoiceTest : public ::testing::Test {
 protected:
  void Choose(ColorTarget target, Answer answer, std::optional<Color> color = std::nullopt) {
    if (target != ColorTarget::kText) rig.dialogs.ExpectColorQuestion(answer);
    if (answer == Answer::kYes) rig.dialogs.ExpectColor(color);
    colors.Choose(target);
  }
  void ExpectConflict() { rig.dialogs.ExpectError("Color Conflict", kConflict); }
  StoredColor StoredPanel() {
    return settings::ReadPanelColor(rig.folder, PanelColor::kDocumentImages);
  }

  testing::FormRig rig;
  ColorChoice colors{rig.context, PanelColor::kDocumentImages,
                     settings::FieldColor::kDocumentImages};
};

TEST_F(ColorChoiceTest, CancelInEitherBoxChangesNothing) {
  Choose(ColorTarget::kPanel, Answer::kCancel);
  Choose(ColorTarget::kBackground, Answer::kYes, std::nullopt);
  Choose(ColorTarget::kText, Answer::kYes, std::nullopt);
  EXPECT_FALSE(colors.changed());
  EXPECT_EQ(colors.panel(), std::nullopt);
  EXPECT_EQ(colors.text(), kBlack);
}

TEST_F(ColorChoiceTest, TheDialogueStartsOnTheColourOfItsTarget) {
  Choose(ColorTarget::kPanel, Answer::kYes, 0x111111);
  EXPECT_EQ(rig.dialogs.last_start_color, kNeutral);
  Choose(ColorTarget::kBackground, Answer::kYes, 0x222222);
  EXPECT_EQ(rig.dialogs.last_start_color, kWhite);
  Choose(ColorTarget::kText, Answer::kYes, 0x333333);
  EXPECT_EQ(rig.dialogs.last_start_color, kBlack);
  for (const auto& [target, start] :
       {std::pair{ColorTarget::kPanel, 0x111111}, std::pair{ColorTarget::kBackground, 0x222222},
        std::pair{ColorTarget::kText, 0x333333}}) {
    Choose(target, Answer::kYes, std::nullopt);
    EXPECT_EQ(rig.dialogs.last_start_color, start);
  }
}

TEST_F(ColorChoiceTest, PanelAndBackgroundWaitForTheSaveTheTextColourDoesNot) {
  Choose(ColorTarget::kPanel, Answer::kYes, 0x112233);
  Choose(ColorTarget::kBackground, Answer::kYes, 0x445566);
  Choose(ColorTarget::kText, Answer::kYes, 0x0000FF);
  EXPECT_TRUE(colors.changed());
  EXPECT_TRUE(StoredPanel().empty());
  EXPECT_EQ(settings::ReadTextColor(rig.folder), StoredColor::Number(0x0000FF));
  colors.Save();
  EXPECT_FALSE(colors.changed());
  EXPECT_EQ(storage::RecordFile(rig.folder, "GColor3.Fil", 20).GetText(17), "1122867");
  EXPECT_EQ(storage::RecordFile(rig.folder, "GColor3.Fil", 20).GetText(19), "4478310");
  EXPECT_EQ(rig.variables.PanelColorNew, "1122867");

  ColorChoice again(rig.context, PanelColor::kDocumentImages,
                    settings::FieldColor::kDocumentImages);
  again.Load();
  EXPECT_EQ(again.panel(), 0x112233);
  EXPECT_EQ(again.background(), 0x445566);
  EXPECT_EQ(again.text(), 0x0000FF);
  EXPECT_FALSE(again.changed());
}

TEST_F(ColorChoiceTest, TheSystemsOwnColourIsStoredAsAWord) {
  Choose(ColorTarget::kPanel, Answer::kYes, 0x112233);
  Choose(ColorTarget::kPanel, Answer::kNo);
  Choose(ColorTarget::kBackground, Answer::kNo);
  EXPECT_EQ(colors.panel(), std::nullopt);
  colors.Save();
  EXPECT_TRUE(StoredPanel().is_default());
  EXPECT_EQ(rig.variables.PanelColorNew, "Default");
}

TEST_F(ColorChoiceTest, TextAndBackgroundMustDiffer) {
  rig.dialogs.ExpectColorQuestion(Answer::kYes);
  ExpectConflict();
  rig.dialogs.ExpectColor(kBlack);
  colors.Choose(ColorTarget::kBackground);
  EXPECT_EQ(colors.background(), kWhite);
  ExpectConflict();
  Choose(ColorTarget::kText, Answer::kYes, kWhite);
  EXPECT_EQ(colors.text(), kBlack);
  EXPECT_FALSE(colors.changed());
  EXPECT_TRUE(settings::ReadTextColor(rig.folder).empty());
  Choose(ColorTarget::kText, Answer::kYes, 0xFFFFFE);  // only equal numbers are refused
  EXPECT_EQ(colors.text(), 0xFFFFFE);
}

TEST_F(ColorChoiceTest, TheColourForAllIsAskedForOncePerColour) {
  const auto ask = [this](Answer answer) {
    rig.dialogs.Expect(kForAll, answer);
    SaveAllPanelColors(rig.context);
  };
  const auto planner = [this] {
    return settings::ReadPanelColor(rig.folder, PanelColor::kPlanner);
  };
  SaveAllPanelColors(rig.context);  // nothing was saved yet

  rig.variables.PanelColorNew = "255";
  ask(Answer::kNo);
  EXPECT_TRUE(planner().empty());
  ask(Answer::kYes);
  EXPECT_EQ(planner(), StoredColor::Number(255));
  EXPECT_EQ(rig.loop.yields, 3);
  rig.variables.PanelColorNew = "255";
  SaveAllPanelColors(rig.context);  // the same colour again
  rig.variables.PanelColorNew = "Default";
  ask(Answer::kYes);
  EXPECT_TRUE(planner().is_default());
}

TEST_F(ColorChoiceTest, TheSharedTextColourGivesWayToTheBackgroundItComesUpon) {
  for (const auto& [background, text] : {std::pair{kWhite, kBlack}, {kBlack, kWhite}}) {
    ASSERT_TRUE(settings::WriteFieldColor(rig.folder, settings::FieldColor::kDocumentImages,
                                          StoredColor::Number(background)));
    ASSERT_TRUE(settings::WriteTextColor(rig.folder, background));
    colors.Load();
    EXPECT_EQ(colors.text(), text);
  }
}

TEST_F(ColorChoiceTest, ColoursThatTheDiskRefusesAreTold) {
  for (const char* name : {"/GColor1.Fil", "/GColor3.Fil"}) {
    ASSERT_TRUE(std::filesystem::create_directory(rig.temporary.path() + name));
  }
  const std::string why = " could not be saved: something else has the name of its file.\n";
  Choose(ColorTarget::kPanel, Answer::kYes, 0x112233);
  for (const Answer leave : {Answer::kNo, Answer::kYes}) {
    rig.dialogs.ExpectYesNo("Color Changes", "Save changes made to Panel and or Text Color?",
                            Answer::kYes);
    rig.dialogs.ExpectError("Not Saved", "The chosen color" + why + "It is still on the screen.");
    rig.dialogs.ExpectLeaveUnsaved(leave);
    EXPECT_EQ(colors.Leave(forms::Buttons::kYesNo), leave == Answer::kYes);
    EXPECT_TRUE(colors.changed());
    EXPECT_EQ(rig.variables.PanelColorNew, "");
  }
  rig.variables.PanelColorNew = "255";
  rig.dialogs.Expect(kForAll, Answer::kYes);
  rig.dialogs.ExpectError("Not Saved",
                          "The color of all functions" + why + "Some of them may have it.");
  SaveAllPanelColors(rig.context);
  EXPECT_EQ(rig.variables.PanelColorNew, "255");  // it is offered again
}

class GridBackgroundPanelTest : public ::testing::Test {
 protected:
  GridBackgroundPanelTest() {
    selector.on_apply = [this](const GridLook& applied) { look = applied; };
    selector.Open();
  }
  std::string Stored() { return storage::RecordFile(rig.folder, "GColor1.Fil", 20).GetText(14); }

  testing::FormRig rig;
  GridBackgroundPanel selector{rig.form, rig.context, settings::GridBackground::kBudget};
  GridLook look;
};

TEST_F(GridBackgroundPanelTest, AThumbnailIsOnlyShownUntilItIsUsed) {
  rig.temporary.Write("WP3.jpg", "picture");
  selector.thumbnails[2].Click();
  EXPECT_TRUE(selector.thumbnails[2].marked());
  EXPECT_EQ(selector.preview.file(), "WP3.jpg");
  EXPECT_EQ(look, GridLook{});
  EXPECT_EQ(Stored(), "");
  selector.use_marked.Click();
  EXPECT_EQ(look, (GridLook{std::nullopt, "WP3.jpg"}));
  EXPECT_EQ(Stored(), "WP3");
  look = {};
  selector.exit.Click();
  EXPECT_EQ(look.wallpaper, "WP3.jpg");
  EXPECT_FALSE(selector.panel.visible());
}

TEST_F(GridBackgroundPanelTest, AMissingWallpaperLeavesTheGridsAsTheyAre) {
  selector.thumbnails[8].Click();
  selector.use_marked.Click();
  EXPECT_EQ(look, GridLook{});
  EXPECT_EQ(Stored(), "");
}

TEST_F(GridBackgroundPanelTest, AColourOrTheDefaultTakesThePicturesPlace) {
  rig.dialogs.ExpectColor(std::nullopt);
  selector.use_color.Click();
  EXPECT_EQ(Stored(), "");
  rig.dialogs.ExpectColor(0xCCFFCC);
  selector.use_color.Click();
  EXPECT_EQ(look, (GridLook{0xCCFFCC, ""}));
  EXPECT_EQ(Stored(), "13434828");
  look = {};
  selector.Load();
  EXPECT_EQ(look.color, 0xCCFFCC);
  selector.use_default.Click();
  EXPECT_EQ(look, GridLook{});
  EXPECT_EQ(Stored(), "Default");
}

TEST_F(GridBackgroundPanelTest, AColourThatTheDiskRefusesIsToldAndHolds) {
  ASSERT_TRUE(std::filesystem::create_directory(rig.temporary.path() + "/GColor1.Fil"));
  rig.dialogs.ExpectColor(0xCCFFCC);
  rig.dialogs.ExpectError(
      "Not Saved",
      "The grid background could not be saved: something else has the name of its "
      "file.\nIt holds for now.");
  selector.use_color.Click();
  EXPECT_EQ(look.color, 0xCCFFCC);
}

}  // namespace
}  // namespace tarnwell::parts
