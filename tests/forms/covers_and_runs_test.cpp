// What a panel that covers others, a menu entry that follows a command, and a long run do to them.

#include <gtest/gtest.h>

#include "forms/command.h"
#include "forms/panel.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

class CoversTest : public ::testing::Test {
 protected:
  testing::FormRig rig;
  Panel rows{rig.form, "rows"};
  Command save{rows, "save", "&Save"};
  Panel month{rig.form, "month"};
  Command close{month, "close", "&Close"};
  Panel print{rig.form, "print"};
  Command stop{print, "stop", "&Stop"};

  void SetUp() override {
    for (Panel* panel : {&month, &print}) panel->SetVisible(false);
    month.Cover({&rows});
    print.Cover({&rows, &month});
  }
  std::string OnShow() {
    std::string names;
    for (const Panel* panel : {&rows, &month, &print}) {
      if (panel->visible()) names += panel->name() + " ";
    }
    return names;
  }
};

TEST_F(CoversTest, WhatACoverHidCanBeUsedAgainWhenTheLastOneGoes) {
  month.SetVisible(true);
  EXPECT_EQ(OnShow(), "month ");
  print.SetVisible(true);
  print.SetVisible(true);
  EXPECT_EQ(OnShow(), "print ");
  EXPECT_FALSE(save.Reachable() || close.Reachable());
  month.SetVisible(false);  // below the other, which stays
  EXPECT_EQ(OnShow(), "print ");
  print.SetVisible(false);
  EXPECT_EQ(OnShow(), "rows ");
  EXPECT_TRUE(save.Reachable());
}

TEST_F(CoversTest, AnEntryIsItsCommandOnceMore) {
  int saved = 0;
  save.on_click = [&] { ++saved; };
  MenuItem& menu = rig.form.menus().AddSubmenu("m", "&Menu");
  MenuItem& entry = menu.AddCommand("mS", "&Save", save);
  MenuItem& either = menu.AddEntry("mC", "&Copy", {[] {}, {&save, &close}});
  int told = 0;
  const Subscription subscription = entry.OnChanged([&] { ++told; });
  entry.Click();
  EXPECT_EQ(saved, 1);
  month.SetVisible(true);  // covers the command
  EXPECT_GT(told, 0);
  EXPECT_TRUE(entry.visible() && either.enabled());
  EXPECT_FALSE(entry.enabled());
  entry.Click();
  EXPECT_EQ(saved, 1);
  month.SetEnabled(false);
  EXPECT_FALSE(either.enabled());
  month.SetVisible(false);
  save.SetVisible(false);
  EXPECT_FALSE(entry.visible());
  entry.SetAction({});
  EXPECT_FALSE(entry.enabled());
}

TEST_F(CoversTest, ALongRunLeavesFreeOnlyWhatItNames) {
  print.SetVisible(true);
  rig.form.menus().AddEntry("mS", "&Save", [] {});
  {
    const Form::BusyScope outer(rig.form, {&stop});
    EXPECT_TRUE(stop.Reachable());
    {
      const Form::BusyScope inner(rig.form);
      EXPECT_FALSE(stop.Reachable());
    }
    EXPECT_TRUE(stop.Reachable() && rig.form.busy());
    print.SetVisible(false);
    EXPECT_FALSE(save.Reachable());
    EXPECT_FALSE(rig.form.menus().Find("mS")->Reachable());
    EXPECT_FALSE(rig.navigator.Close(rig.form, UnloadCause::kCommand));
  }
  EXPECT_TRUE(save.Reachable());
  EXPECT_TRUE(rig.form.menus().Find("mS")->Reachable());
}

}  // namespace
}  // namespace tarnwell::forms
