#include "parts/phone_dialer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/modem_port.h"
#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PhoneDialerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    label_.SetVisible(false);
    rig_.loop.on_wait = [this] {
      dialer_.timer.Tick();
      ++seconds_;
    };
  }
  void TearDown() override {
    EXPECT_FALSE(rig_.modem.is_open());
    EXPECT_FALSE(label_.visible());
    EXPECT_FALSE(dialer_.timer.enabled());
  }
  void ExpectPickUp(const std::string& number, Answer answer) {
    rig_.dialogs.Expect({"Phone Dialing Function",
                         "Number Dialed: " + number +
                             "\n\nPlease pick up the phone and either press Enter or click OK\n"
                             "Or click Cancel to Hang-up Phone",
                         forms::Icon::kInformation, forms::Buttons::kOkCancel},
                        answer);
  }
  void ExpectNoPort(const std::string& current, std::optional<std::string> answer) {
    rig_.dialogs.ExpectInput("Telephone Dialing Option",
                             "COM1: not available.\nCommPort is currently set at: " + current +
                                 "\nChange the CommPort property to another port.\n"
                                 "ENTER NEW PORT NUMBER BELOW:",
                             std::move(answer));
  }
  void ExpectNoAnswer(const std::string& current, std::optional<std::string> answer) {
    rig_.dialogs.ExpectInput(
        "Telephone Dialing Option",
        "To work properly your phone and modem must be connected to the same phone line Or The "
        "Current Commport may not be available.\nCommPort is currently set at: " +
            current +
            "\nCheck your connects or to change the CommPort property to another port.\n"
            "ENTER NEW PORT NUMBER BELOW:",
        std::move(answer));
  }

  testing::FormRig rig_;
  forms::Label label_{rig_.form, "Label3"};
  PhoneDialer dialer_{rig_.form, rig_.context};
  int seconds_ = 0;
};

TEST_F(PhoneDialerTest, DialsAndHangsUpWhateverIsAnsweredToTheBox) {
  const struct {
    std::deque<std::string> modem;
    int seconds;
  } cases[] = {{{"OK"}, 0},
               {{"", "", "\r\nO", "K\r\n"}, 3},
               {{"\xFF\x00noise", "", "", "", "", "", "", "", "ATDT\r\r\nOK\r\n"}, 8}};
  for (const auto& one : cases) {
    for (const Answer answer : {Answer::kOk, Answer::kCancel}) {
      seconds_ = 0;
      rig_.modem.sent.clear();
      rig_.modem.answers = one.modem;
      ExpectPickUp("555-0100 ext. 7", answer);
      dialer_.Dial("  555-0100 ext. 7 ", label_);
      EXPECT_THAT(rig_.modem.sent, ElementsAre("ATDT 555-0100 ext. 7;\r", "ATH\r"));
      EXPECT_EQ(seconds_, one.seconds);
    }
  }
  EXPECT_EQ(rig_.modem.cleared, 6);
}

TEST_F(PhoneDialerTest, TakesNoNumberOfFewerThanThreeCharacters) {
  for (const char* number : {"", "   ", " 55 ", "5\r\n5"}) {
    rig_.dialogs.ExpectNote("Telephone Dialing Option",
                            "First, Select(Highlight) a valid telephone number on the Grid!");
    dialer_.Dial(number, label_);
  }
  EXPECT_THAT(rig_.modem.sent, IsEmpty());
}

TEST_F(PhoneDialerTest, ANumberIsOneCommandWhateverStandsInIt) {
  rig_.modem.answers = {"OK"};
  ExpectPickUp("555;ATZ0100", Answer::kOk);
  dialer_.Dial("555;\rATZ\n0100", label_);
  EXPECT_EQ(rig_.modem.sent.front(), "ATDT 555;ATZ0100;\r");
}

TEST_F(PhoneDialerTest, ShowsThatItDialsOnlyUntilTheAnswer) {
  std::vector<std::string> shown;
  rig_.loop.on_wait = [&] {
    EXPECT_TRUE(label_.visible());
    shown.push_back(label_.caption());
    dialer_.timer.Tick();
    dialer_.Dial("555-0200", label_);  // a second click
  };
  rig_.modem.answers = {"", "", "", "OK"};
  ExpectPickUp("555-0100", Answer::kOk);
  dialer_.Dial("555-0100", label_);
  EXPECT_THAT(shown, ElementsAre("Dialing...", "", "Dialing..."));
}

TEST_F(PhoneDialerTest, AsksForAnotherPortUntilOneOpens) {
  rig_.modem.works_at = 2;
  rig_.modem.answers = {"OK"};
  ExpectNoPort("1 (/dev/ttyS0)", "7");
  ExpectNoPort("7 (this computer has no such port)", "2");
  ExpectPickUp("555-0100", Answer::kOk);
  dialer_.Dial("555-0100", label_);
  EXPECT_EQ(settings::ReadModemPort(rig_.folder), 2);
  EXPECT_THAT(rig_.modem.sent, ElementsAre("ATDT 555-0100;\r", "ATH\r"));
}

TEST_F(PhoneDialerTest, GivesUpAfterNineSecondsAndTriesAgainOrEnds) {
  ExpectNoAnswer("1 (/dev/ttyS0)", "1");
  ExpectNoAnswer("1 (/dev/ttyS0)", std::nullopt);
  dialer_.Dial("555-0100", label_);
  EXPECT_EQ(seconds_, 18);
  EXPECT_THAT(rig_.modem.sent,
              ElementsAre("ATDT 555-0100;\r", "ATH\r", "ATDT 555-0100;\r", "ATH\r"));
}

TEST_F(PhoneDialerTest, AnAnswerWithoutANumberEndsTheDialAndKeepsThePort) {
  rig_.modem.works_at = 0;
  ASSERT_TRUE(settings::WriteModemPort(rig_.folder, 2));
  for (const char* answer : {"", "  ", "0", "COM2"}) {
    ExpectNoPort("2 (/dev/ttyUSB0)", answer);
    dialer_.Dial("555-0100", label_);
  }
  EXPECT_EQ(settings::ReadModemPort(rig_.folder), 2);
}

TEST_F(PhoneDialerTest, ANumberThatIsNoPortMeansTheFirst) {
  for (const char* answer : {"-3", "1e300", "256"}) {
    rig_.modem.works_at = 0;
    ASSERT_TRUE(settings::WriteModemPort(rig_.folder, 2));
    ExpectNoPort("2 (/dev/ttyUSB0)", answer);
    ExpectNoPort("1 (/dev/ttyS0)", std::nullopt);
    dialer_.Dial("555-0100", label_);
    EXPECT_EQ(settings::ReadModemPort(rig_.folder), 1) << answer;
  }
}

TEST_F(PhoneDialerTest, LeavingWhileItDialsHangsUpWithoutAnotherBox) {
  rig_.loop.on_wait = [&] {
    dialer_.Stop();
    EXPECT_THAT(rig_.modem.sent, ElementsAre("ATDT 555-0100;\r", "ATH\r"));
    EXPECT_FALSE(rig_.modem.is_open());
  };
  dialer_.Dial("555-0100", label_);
}

TEST_F(PhoneDialerTest, TheProgramsEndHangsUpToo) {
  rig_.loop.on_wait = [&] { rig_.navigator.EndProgram(); };
  dialer_.Dial("555-0100", label_);
  EXPECT_THAT(rig_.modem.sent, ElementsAre("ATDT 555-0100;\r", "ATH\r"));
}

}  // namespace
}  // namespace tarnwell::parts
