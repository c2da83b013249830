#include "reference/toolsandinfo1.h"

#include <gmock/gmock.h>

#include "forms/form_names.h"
#include "reference/reference_rig.h"
#include "richtext/plain_text.h"
#include "settings/print_settings.h"

namespace tarnwell::reference {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ToolsandInfo1Test : public ::testing::Test {
 protected:
  void SetUp() override {
    rig_.supplied.Write("Misc1.Fl1", "{\\rtf1 No promise}");
    rig_.supplied.Write("Misc2.Fl1", "{\\rtf1 About it}");
    rig_.supplied.Write("Misc57.Fl1", "{\\rtf1 Who saw it}");
  }
  ToolsandInfo1& Show() {
    rig_.Show("ToolsandInfo1");
    return form();
  }
  ToolsandInfo1& form() { return rig_.Get<ToolsandInfo1>("ToolsandInfo1"); }
  std::string Shown() { return richtext::PlainText(form().text.document()); }

  ReferenceRig rig_;
};

TEST_F(ToolsandInfo1Test, EachTextIsShownUnderItsName) {
  Show();
  EXPECT_EQ(Shown(), "About it");
  struct Case {
    forms::Command& button;
    const char* text;
    const char* caption;
  };
  for (const auto& [button, text, caption] :
       {Case{form().disclaimer, "No promise", "Tools and Program Information - Disclaimer"},
        Case{form().incident_report, "Who saw it",
             "Tools and Program Information - Sample Incident Report"},
        Case{form().program_information, "About it",
             "Tools and Program Information - Program Information"}}) {
    button.Click();
    EXPECT_EQ(Shown(), text);
    EXPECT_EQ(form().caption(), caption);
    EXPECT_TRUE(button.selected());
    EXPECT_TRUE(form().copy.Reachable() && form().print_options.Reachable());
    EXPECT_FALSE(form().text_trouble.visible());
  }
  EXPECT_FALSE(form().disclaimer.selected());
  form().text.Type("x");
  EXPECT_EQ(Shown(), "About it");
}

TEST_F(ToolsandInfo1Test, AMissingTextGivesAnEmptyViewAndNothingToCopyOrPrint) {
  rig_.supplied.Remove("Misc1.Fl1");
  Show();
  form().disclaimer.Click();
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(form().text_trouble.caption(), "The text Misc1.Fl1 is missing.");
  EXPECT_TRUE(form().text_trouble.visible());
  form().copy.Click();
  EXPECT_EQ(rig_.clipboard.rich_text, "");
  rig_.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  form().print_options.Click();
  EXPECT_FALSE(form().print.is_open());
}

TEST_F(ToolsandInfo1Test, TheWholeTextGoesToTheClipboard) {
  Show();
  rig_.dialogs.ExpectNote("Copy Option", "A copy has been copied to the Windows Clipboard.");
  form().copy.Click();
  EXPECT_THAT(rig_.clipboard.rich_text, HasSubstr("{\\rtf1"));
  EXPECT_THAT(rig_.clipboard.rich_text, HasSubstr("About it"));
}

TEST_F(ToolsandInfo1Test, TheTextOnShowIsPrintedInThePanelsFont) {
  ASSERT_TRUE(settings::WriteGuideLines(rig_.folder, settings::GuideLines::kMainScreens, 1));
  Show();
  rig_.program.variables().PrintFontName = "Arial";
  form().print_options.Click();
  EXPECT_FALSE(form().text_panel.Reachable());
  EXPECT_TRUE(form().print.preview.focused());
  EXPECT_TRUE(form().print.preview.guide_lines());
  EXPECT_EQ(rig_.program.navigator().top()->help_context(), 1014);
  form().print.guide_lines.Pick(0);
  EXPECT_EQ(settings::ReadGuideLines(rig_.folder, settings::GuideLines::kMainScreens), 0);
  form().print.print.Click();
  ASSERT_EQ(rig_.pages.printed.size(), 1u);
  std::vector<std::string> words;
  for (const forms::Mark& mark : rig_.pages.printed[0].pages.at(0)) {
    const auto& text = std::get<forms::PlacedText>(mark);
    const auto font = static_cast<std::size_t>(text.font);
    words.push_back(text.text + "|" + rig_.pages.printed[0].fonts.at(font).name);
  }
  EXPECT_THAT(words, ElementsAre("About it|Arial", "Printed:  March 9, 2026|Arial"));

  rig_.dialogs.ExpectYesNoCancel("Exit", "Exit Tarnwell?", forms::Answer::kNo);
  form().main_buttons[parts::kExitProgram].Click();
  EXPECT_FALSE(form().print.is_open()) << "a main button closes it";
  EXPECT_TRUE(form().print_options.focused());
}

TEST_F(ToolsandInfo1Test, ALinkOpensItsSite) {
  Show();
  for (std::size_t i = 0; i < kInternetLinkCount; ++i) {
    EXPECT_EQ(form().links[i].caption(), "Site " + std::to_string(i));
    form().links[i].Click();
  }
  EXPECT_EQ(rig_.launcher.launched.size(), kInternetLinkCount);
  EXPECT_EQ(rig_.launcher.launched[3], "web https://site3.example/");
  rig_.launcher.refuse = true;
  rig_.dialogs.ExpectWarning(
      "Web Site", "No program on this computer could open this address:\nhttps://site0.example/");
  form().links[0].Click();
}

TEST_F(ToolsandInfo1Test, LinksThatCannotBeReadAreNotThere) {
  rig_.user.Write("internet.txt", "0\tMine\thttps://mine.example/\n1\tBad\tjavascript:alert(1)\n");
  Show();
  EXPECT_EQ(form().links[0].caption(), "Mine");
  EXPECT_FALSE(form().links[1].visible());
  EXPECT_FALSE(form().links[6].visible());
  EXPECT_THAT(form().link_trouble.caption(), HasSubstr("a line that can't be used: line 2."));
  EXPECT_TRUE(form().link_trouble.visible());
}

TEST_F(ToolsandInfo1Test, TheSideButtonsOpenTheirScreens) {
  Show();
  const std::pair<forms::Command*, const char*> buttons[] = {
      {&form().contacts, forms::form_names::kContactEntry},
      {&form().contact_display, forms::form_names::kContactDisplay},
      {&form().planner, forms::form_names::kZcalandar1},
      {&form().calendar, forms::form_names::kCalendar}};
  for (const auto& [button, name] : buttons) {
    button->Click();
    forms::Form& opened = *rig_.program.navigator().top();
    EXPECT_EQ(opened.name(), name);
    EXPECT_EQ(rig_.window.hourglasses, 0) << name;
    rig_.program.navigator().Close(opened, forms::UnloadCause::kCommand);
    ASSERT_EQ(rig_.program.navigator().top(), &form()) << name;
    EXPECT_EQ(Shown(), "About it");
  }
}

}  // namespace
}  // namespace tarnwell::reference
