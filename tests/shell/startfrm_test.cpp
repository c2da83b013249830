#include "shell/startfrm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "forms/color.h"
#include "planner/day_store.h"
#include "planner/zcalandar1.h"
#include "settings/display_settings.h"
#include "shell/about1.h"
#include "shell/data_place.h"
#include "storage/record_file.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::shell {
namespace {

using forms::Answer;

class StartfrmTest : public ::testing::Test {
 protected:
  void Start() { rig.Start(); }
  Startfrm& form() { return rig.Get<Startfrm>("Startfrm"); }
  storage::RecordFile GColor3() { return storage::RecordFile(rig.folder, "GColor3.Fil", 20); }
  storage::TaggedValue StoredBackground() { return settings::ReadStartBackground(rig.folder); }
  void SaveToday(const planner::DayRow& row) {
    planner::DayRows rows;
    rows[3] = row;
    ASSERT_TRUE(planner::WriteDay(rig.folder, rig.clock.Today(), rows));
  }

  testing::ProgramRig rig;
};

TEST_F(StartfrmTest, AFirstRunIsMaximisedAndBlueWithTodaysDateAndWithoutAReminder) {
  Start();
  EXPECT_TRUE(rig.window.is_maximized);
  EXPECT_EQ(form().background(), 0xFF0000);
  EXPECT_EQ(form().today.caption(), "March 9, 2026");
  EXPECT_FALSE(form().reminder.visible());
  EXPECT_TRUE(form().smaller_screen.visible());
  EXPECT_FALSE(form().full_screen.visible());
  EXPECT_EQ(form().focus(), &form().begin);
  EXPECT_EQ(rig.window.hourglasses, 0);
  EXPECT_EQ(rig.program->variables().SplashShown, 99);
}

TEST(DataPlaceTextTest, ALongPathIsBrokenBehindANameWhereItCanBe) {
  const std::string head = "All that you enter is kept in this folder:\n";
  const std::string name(30, 'n');
  const std::string endless(50, 'n');
  const struct {
    std::string path, lines;
  } cases[] = {{"/home/ann/Tarnwell", "/home/ann/Tarnwell"},
               {"/" + name + "/" + name + "/T", "/" + name + "/\n" + name + "/T"},
               {"/" + endless, "/" + endless.substr(7) + "\n" + endless.substr(43)}};
  for (const auto& one : cases) EXPECT_EQ(DataPlaceText(one.path), head + one.lines);
}

TEST_F(StartfrmTest, TheFirstStartAloneTellsWhereTheDataIs) {
  Start();
  EXPECT_TRUE(form().data_place.Reachable());
  EXPECT_THAT(form().data_place.caption(), ::testing::HasSubstr("/home/ann/Tarnwell"));
  rig.ClickMenu("mOPDefault");  // runs the load routine again
  EXPECT_TRUE(form().data_place.Reachable());
  Start();
  EXPECT_FALSE(form().data_place.visible());
}

TEST_F(StartfrmTest, TheSplashStaysFourSecondsAndComesOnce) {
  const auto before = rig.clock.now.time_of_day;
  Start();
  EXPECT_EQ((rig.clock.now.time_of_day - before).count(), 4);
  rig.ClickMenu("mOPDefault");
  EXPECT_EQ((rig.clock.now.time_of_day - before).count(), 4);
}

TEST_F(StartfrmTest, StoredSizesBelowTheLeastBecomeTheDefault) {
  const struct {
    float height, width;
    forms::Size expected;
  } cases[] = {
      {11000, 15000, {15100, 11200}}, {11150, 15100, {15100, 11150}},
      {13000, 17000, {17000, 13000}}, {0, 0, {15100, 11200}},
      {-5, 3e9f, {480000, 11200}},    {NAN, NAN, {15100, 11200}},
  };
  for (const auto& c : cases) {
    settings::WriteSmallerScreen(rig.folder, true);
    settings::WriteWindowSize(rig.folder, c.height, c.width);
    Start();
    EXPECT_FALSE(rig.window.is_maximized);
    EXPECT_EQ(rig.window.normal_size, c.expected) << c.height << " by " << c.width;
    EXPECT_EQ(rig.program->variables().SmallerScreen, 9);
  }
}

TEST_F(StartfrmTest, AScreenThatIsTooSmallEndsTheProgramAfterTheBox) {
  rig.window.screen_size = {800 * 15, 600 * 15};
  rig.dialogs.ExpectNote(
      "Wessoby Display Option",
      "Monitor Resolution Settings (Screen Area) and Program Size requirements are at least 1024 "
      "by "
      "768 or Higher.\n\nIf you do not set your screen resolution to this setting or higher this "
      "program will not function properly!");
  Start();
  EXPECT_TRUE(rig.navigator().ended());

  rig.window.screen_size = {1024 * 15, 768 * 15};
  Start();
  EXPECT_FALSE(rig.navigator().ended());
}

TEST_F(StartfrmTest, DisplayEntriesStoreTheChoiceAndTheSize) {
  Start();
  rig.window.normal_size = {16005, 12345};
  rig.ClickMenu("mOPS");
  EXPECT_EQ(GColor3().GetText(35), "Yes");
  EXPECT_EQ(GColor3().GetTagged(36), storage::TaggedValue(12345.0f));
  EXPECT_EQ(GColor3().GetTagged(37), storage::TaggedValue(16005.0f));
  EXPECT_FALSE(rig.window.is_maximized);
  EXPECT_TRUE(form().full_screen.visible());

  rig.ClickMenu("mOPF");
  EXPECT_EQ(GColor3().GetText(35), "No");
  EXPECT_TRUE(rig.window.is_maximized);

  rig.ClickMenu("mOPDefault");
  EXPECT_EQ(GColor3().GetText(35), "Yes");
  EXPECT_EQ(GColor3().GetTagged(36), storage::TaggedValue(std::int16_t{11200}));
  EXPECT_EQ(GColor3().GetTagged(37), storage::TaggedValue(std::int16_t{15100}));
  EXPECT_EQ(rig.window.normal_size, (forms::Size{15100, 11200}));
}

TEST_F(StartfrmTest, TheWindowsOwnButtonsChangeTheSetting) {
  Start();
  rig.window.is_maximized = false;
  form().Resized();
  EXPECT_EQ(GColor3().GetText(35), "Yes");
  EXPECT_EQ(rig.program->variables().SmallerScreen, 9);
  rig.window.is_maximized = true;
  form().Resized();
  EXPECT_EQ(GColor3().GetText(35), "No");
  EXPECT_EQ(rig.program->variables().SmallerScreen, 0);
}

// A full HD display at 150 % has room for 1280 by 720, less a task bar.
TEST_F(StartfrmTest, AnEnlargedScreenIsUsedAsFarAsItGoes) {
  rig.window.screen_size = {1920 * 15, 1080 * 15};
  rig.window.room_size = {1280 * 15, 690 * 15};
  Start();
  form().Resized();
  EXPECT_TRUE(rig.window.is_maximized);
  rig.window.is_maximized = false;
  rig.window.normal_size = *rig.window.room_size;
  form().Resized();
  EXPECT_EQ(GColor3().GetText(35), "Yes");
  rig.window.normal_size.height = 600 * 15;
  form().Resized();
  EXPECT_EQ(rig.window.normal_size, *rig.window.room_size);
}

TEST_F(StartfrmTest, TheButtonsLeadToTheOtherDisplay) {
  settings::WriteWindowSize(rig.folder, 12000, 15500);
  Start();
  form().smaller_screen.Click();
  EXPECT_EQ(rig.window.normal_size, (forms::Size{15500, 12000}));
  EXPECT_EQ(GColor3().GetText(35), "Yes");
  form().full_screen.Click();
  EXPECT_TRUE(rig.window.is_maximized);
  EXPECT_EQ(GColor3().GetText(35), "No");
}

TEST_F(StartfrmTest, LeavingKeepsANormalSizedWindowForTheNextStart) {
  Start();
  form().PressEscape();
  EXPECT_TRUE(rig.navigator().ended());
  EXPECT_EQ(GColor3().GetText(35), "");  // full screen writes nothing

  Start();
  rig.window.is_maximized = false;
  rig.CloseWindow();
  EXPECT_TRUE(rig.navigator().ended());
  EXPECT_EQ(GColor3().GetText(35), "Yes");
}

TEST_F(StartfrmTest, TheBackgroundIsAskedForStoredAndComesBack) {
  const auto ask = [this](Answer answer) {
    rig.dialogs.ExpectColorQuestion(answer, "Background Color");
  };
  Start();
  ask(Answer::kCancel);
  rig.ClickMenu("mOBC");
  EXPECT_TRUE(storage::IsEmpty(StoredBackground()));

  ask(Answer::kYes);
  rig.dialogs.ExpectColor(std::nullopt);
  rig.ClickMenu("mOBC");
  EXPECT_TRUE(storage::IsEmpty(StoredBackground()));
  EXPECT_EQ(rig.dialogs.last_start_color, 0xFF0000);

  ask(Answer::kYes);
  rig.dialogs.ExpectColor(0x336699);
  rig.ClickMenu("mOBC");
  EXPECT_EQ(StoredBackground(), storage::TaggedValue(std::int32_t{0x336699}));
  Start();
  EXPECT_EQ(form().background(), 0x336699);

  ask(Answer::kNo);
  rig.ClickMenu("mOBC");
  EXPECT_EQ(StoredBackground(), storage::TaggedValue(std::string("Def")));
  Start();
  EXPECT_EQ(form().background(), forms::kNeutral);
}

TEST(StartfrmOnABadDiskTest, ADisplayThatCantBeStoredIsTold) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig rig(files);
  rig.Start();
  rig.window.is_maximized = false;
  auto& form = rig.Get<Startfrm>("Startfrm");
  form.Resized();  // stored: a normal-sized window of this size
  files.MakeReadOnly();
  form.begin.Click();
  rig.navigator().Close(*rig.navigator().top(), forms::UnloadCause::kCommand);

  const auto expect_refusal = [&] {
    rig.dialogs.ExpectError("Not Saved",
                            "The size of the window could not be saved: the disk is read-only.\n"
                            "The next start takes the one before.");
  };
  for (const char* entry : {"mOPF", "mOPDefault"}) {
    expect_refusal();
    rig.ClickMenu(entry);
  }
  rig.dialogs.ExpectColorQuestion(Answer::kNo, "Background Color");
  rig.dialogs.ExpectError("Not Saved",
                          "The background could not be saved: the disk is read-only.\n"
                          "It holds for now.");
  rig.ClickMenu("mOBC");
  EXPECT_EQ(form.background(), forms::kNeutral);
  rig.window.normal_size = {17000, 13000};
  expect_refusal();
  rig.CloseWindow();
  EXPECT_TRUE(rig.navigator().ended());
}

TEST_F(StartfrmTest, OnlyAnAppointmentTextOfTodayBringsTheReminder) {
  SaveToday({"9:30 AM", ""});
  Start();
  EXPECT_FALSE(form().reminder.visible());
  SaveToday({"9:30 AM", "Dentist"});
  Start();
  EXPECT_TRUE(form().reminder.visible());
  EXPECT_EQ(form().reminder_clock.caption(), "2:05 PM");
  form().close_reminder.Click();
  EXPECT_FALSE(form().reminder.visible());
}

TEST_F(StartfrmTest, ADayThatCantBeReadBringsNoReminder) {
  const std::string year = planner::PlannerYearFileName(2026);
  ASSERT_TRUE(std::filesystem::create_directory(rig.temporary.path() + "/" + year));
  Start();
  EXPECT_FALSE(form().reminder.visible());
}

TEST_F(StartfrmTest, TheReminderLeadsToThePlanner) {
  SaveToday({"9:30 AM", "Dentist"});
  Start();
  form().view_planner.Click();
  EXPECT_FALSE(form().reminder.visible());
  EXPECT_EQ(rig.top(), "Zcalandar1");
  EXPECT_EQ(rig.Get<planner::Zcalandar1>("Zcalandar1").entries[3].text(), "Dentist");
}

TEST_F(StartfrmTest, AboutIsModalAndHelpOpensByNumber) {
  Start();
  rig.loop.during_modal = [&] {
    EXPECT_EQ(rig.top(), "About1");
    form().begin.Click();  // lies below a modal form
    EXPECT_EQ(rig.top(), "About1");
    EXPECT_TRUE(rig.navigator().top()->PressEnter());
  };
  rig.ClickMenu("mHAbout");
  EXPECT_EQ(rig.top(), "Startfrm");
  rig.ClickMenu("mHI");
  EXPECT_EQ(rig.help.shown, std::vector<int>{1000});
}

TEST_F(StartfrmTest, AboutTellsWhereTheDataIsAndOpensTheFolder) {
  Start();
  rig.loop.during_modal = [&] {
    auto& about = rig.Get<About1>("About1");
    EXPECT_THAT(about.data_place.caption(), ::testing::HasSubstr("/home/ann/Tarnwell"));
    about.open_folder.Click();
    EXPECT_THAT(rig.launcher.launched, ::testing::ElementsAre("program folder"));
    rig.launcher.refuse = true;
    rig.dialogs.ExpectWarning(
        "Data Folder", "No program on this computer could open this folder:\n/home/ann/Tarnwell");
    about.open_folder.Click();
    about.licenses.Type("");
    EXPECT_FALSE(about.licenses.text().empty());
    about.close.Click();
  };
  rig.ClickMenu("mHAbout");
}

}  // namespace
}  // namespace tarnwell::shell
