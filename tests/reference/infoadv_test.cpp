#include "reference/infoadv.h"

#include <gmock/gmock.h>

#include <string>

#include "reference/reference_rig.h"
#include "richtext/plain_text.h"

namespace tarnwell::reference {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InfoAdvTest : public ::testing::Test {
 protected:
  InfoAdv& Show() {
    rig_.Show("InfoAdv");
    return rig_.Get<InfoAdv>("InfoAdv");
  }

  ReferenceRig rig_;
};

TEST_F(InfoAdvTest, ASideButtonShowsItsPanelAlone) {
  rig_.supplied.Write("Misc8.Fl1", "{\\rtf1 First hour}");
  InfoAdv& form = Show();
  EXPECT_EQ(richtext::PlainText(form.text.document()), "First hour");
  form.text.Type("x");
  EXPECT_EQ(richtext::PlainText(form.text.document()), "First hour");
  struct Case {
    std::size_t side;
    const char* caption;
    bool text, federal, states;
  };
  for (const auto& [side, caption, text, federal, states] :
       {Case{1, "Information Advisor - Federal Goverment Websites", false, true, false},
        Case{2, "Information Advisor - State Websites", false, false, true},
        Case{0, "Information Advisor - Getting Started", true, false, false}}) {
    form.sides[side].Click();
    EXPECT_EQ(form.caption(), caption);
    EXPECT_EQ(form.text_panel.visible(), text) << caption;
    EXPECT_EQ(form.federal.visible(), federal) << caption;
    EXPECT_EQ(form.states.visible(), states) << caption;
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(form.sides[i].selected(), i == side) << caption;
    EXPECT_FALSE(form.trouble.visible() && side != 1) << form.trouble.caption();
  }
}

TEST_F(InfoAdvTest, EveryStateHasItsFourPlaces) {
  InfoAdv& form = Show();
  form.sides[InfoAdv::kState].Click();
  EXPECT_FALSE(form.state_panel.visible());
  for (int i = 0; i < form.state.size(); ++i) {
    form.state.Pick(i);
    const std::string name = form.state.option(i).caption();
    EXPECT_EQ(form.state_panel.caption(), i == 8 ? "District of Columbia" : "State Of " + name);
    EXPECT_EQ(form.state_sites.button(0).caption(), "State Government Website");
    EXPECT_EQ(form.state_sites.button(1).caption(), "Small Business Resource (SBA)");
    EXPECT_EQ(form.state_sites.button(2).caption(), "Grow && Prosper");
    EXPECT_EQ(form.state_sites.button(3).caption(), "Additional Document 2 (Internet/PDF)");
  }
  EXPECT_EQ(form.state.option(51).caption(), "Wyoming");
  rig_.launcher.launched.clear();
  for (std::size_t place = 0; place < kStatePlaces; ++place) {
    form.state_sites.button(place).Click();
  }
  EXPECT_THAT(rig_.launcher.launched,
              ElementsAre("web https://place0.example/Wy", "web https://place1.example/Wy",
                          "web https://place2.example/Wy", "web https://place3.example/Wy"));
}

TEST_F(InfoAdvTest, AButtonWithoutAnAddressIsDeadAndToldOf) {
  InfoAdv& form = Show();
  form.sides[InfoAdv::kFederal].Click();
  EXPECT_EQ(form.trouble.caption(),
            "The list of web sites in federal.txt isn't whole: 5 addresses are missing.");
  EXPECT_TRUE(form.trouble.visible());
  form.federal_sites.button(1).Click();
  form.federal_sites.button(6).Click();
  EXPECT_THAT(rig_.launcher.launched, ElementsAre("web https://dol.example/"));
  form.sides[InfoAdv::kState].Click();
  EXPECT_FALSE(form.trouble.visible());
}

TEST_F(InfoAdvTest, WithoutABrowserTheAddressIsTold) {
  InfoAdv& form = Show();
  form.sides[InfoAdv::kFederal].Click();
  rig_.launcher.refuse = true;
  rig_.dialogs.ExpectWarning(
      "Web Site", "No program on this computer could open this address:\nhttps://sba.example/");
  form.federal_sites.button(0).Click();
}

TEST_F(InfoAdvTest, WhatWasPastedIsOpenedIfItIsAWebAddress) {
  InfoAdv& form = Show();
  form.display.Click();
  form.address.Type("   ");
  form.display.Click();
  EXPECT_THAT(rig_.launcher.launched, IsEmpty());
  for (const char* typed : {" HTTPS://a.example/b.pdf ", "www.example.com", "http://a.example"}) {
    form.address.Type(typed);
    form.address.PressEnter();
  }
  EXPECT_THAT(rig_.launcher.launched, ElementsAre("web HTTPS://a.example/b.pdf",
                                                  "web www.example.com", "web http://a.example"));
  for (const char* typed : {"/etc/passwd", "file:///etc/passwd", "example", "mailto:a@b.example"}) {
    form.address.Type(typed);
    rig_.dialogs.ExpectWarning("Web Site", "A web address begins with https://, http:// or www.");
    form.display.Click();
  }
  EXPECT_EQ(rig_.launcher.launched.size(), 3u);
  form.clear.Click();
  EXPECT_EQ(form.address.text(), "");
  EXPECT_TRUE(form.address.focused());
}

// Each leaves the rest of the screen as it is.
TEST_F(InfoAdvTest, WhatIsWrongWithASuppliedFileIsSaidInItsPlace) {
  rig_.user.Write("states.txt", "Alabama\t0\t\thttps://mine.example/\nnonsense\n");
  std::filesystem::create_directory(rig_.user.path() + "/federal.txt");
  InfoAdv& form = Show();
  EXPECT_EQ(form.trouble.caption(), "The text Misc8.Fl1 is missing.");
  EXPECT_TRUE(form.text.IsBlank());
  form.sides[InfoAdv::kFederal].Click();
  EXPECT_EQ(form.trouble.caption(),
            "The list of web sites in federal.txt can't be read: something else has the name of "
            "its file.");
  form.sides[InfoAdv::kState].Click();
  EXPECT_EQ(form.trouble.caption(),
            "The list of web sites in states.txt has a line that can't be used: line 2.");
  form.state.Pick(0);
  EXPECT_EQ(form.state_sites.address(0).caption(), "https://mine.example/");
  EXPECT_FALSE(form.state_sites.button(1).enabled() || form.state_sites.address(1).visible());
  form.state_sites.address(0).Click();
  EXPECT_EQ(form.address.text(), "https://mine.example/");
  form.address.Type("https://works.example/");
  form.display.Click();
  EXPECT_THAT(rig_.launcher.launched, ElementsAre("web https://works.example/"));
}

}  // namespace
}  // namespace tarnwell::reference
