#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <QTest>
#include <QTimer>

#include "desktop/services/qt_event_loop.h"
#include "desktop/services/qt_launcher.h"
#include "desktop/services/qt_modem.h"
#include "parts/phone_dialer.h"
#include "support/form_rig.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

// The far end of a line whose near end is a port of the machine.
class FarEnd {
 public:
  FarEnd() : line_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    EXPECT_EQ(::grantpt(line_), 0);
    EXPECT_EQ(::unlockpt(line_), 0);
    port_ = QString::fromLocal8Bit(::ptsname(line_));
    termios plain{};  // else a closed port says again what it is told
    EXPECT_EQ(::tcgetattr(line_, &plain), 0);
    ::cfmakeraw(&plain);
    EXPECT_EQ(::tcsetattr(line_, TCSANOW, &plain), 0);
  }
  ~FarEnd() { HangUp(); }
  FarEnd(const FarEnd&) = delete;
  FarEnd& operator=(const FarEnd&) = delete;

  const QString& port() const { return port_; }
  void Say(const std::string& bytes) const {
    EXPECT_EQ(::write(line_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  // All that came so far.
  const std::string& Heard() {
    char buffer[256];
    for (ssize_t count = 1; line_ >= 0 && count > 0;) {
      count = ::read(line_, buffer, sizeof buffer);
      if (count > 0) heard_.append(buffer, static_cast<std::size_t>(count));
    }
    return heard_;
  }
  void HangUp() {
    if (line_ >= 0) ::close(line_);
    line_ = -1;
  }

 private:
  int line_;
  QString port_;
  std::string heard_;
};

// One dial over a real line, in real time but for the seconds: these pass when the test says so.
class DialTest : public ::testing::Test {
 protected:
  void Dial() {
    label_.SetVisible(false);
    dialer_.Dial("555-0100", label_);
    EXPECT_FALSE(modem_.is_open());
  }
  // Runs again and again while events happen, until it says that it is done.
  void Meanwhile(std::function<bool()> act) {
    QObject::connect(&steps_, &QTimer::timeout, &steps_, [this, act = std::move(act)] {
      if (act()) steps_.stop();
    });
    steps_.start(1);
  }
  bool HasDialed() { return far_.Heard().find(";\r") != std::string::npos; }
  void ExpectPickUp() {
    world_.dialogs.Expect({"Phone Dialing Function",
                           "Number Dialed: 555-0100\n\n"
                           "Please pick up the phone and either press Enter or click OK\n"
                           "Or click Cancel to Hang-up Phone",
                           forms::Icon::kInformation, forms::Buttons::kOkCancel},
                          forms::Answer::kOk);
  }
  void ExpectInput(const std::string& trouble, const std::string& advice) {
    world_.dialogs.ExpectInput("Telephone Dialing Option",
                               trouble + "\nCommPort is currently set at: 1 (" +
                                   port_.toStdString() + ")\n" + advice +
                                   "\nENTER NEW PORT NUMBER BELOW:",
                               std::nullopt);
  }
  void ExpectNoAnswer() {
    ExpectInput(
        "To work properly your phone and modem must be connected to the same phone line Or The "
        "Current Commport may not be available.",
        "Check your connects or to change the CommPort property to another port.");
  }

  testing::FormRig world_;
  FarEnd far_;
  QString port_ = far_.port();
  QtEventLoop loop_;
  QtModem modem_{[this] { return QStringList{port_}; }};
  forms::Context context_{
      {world_.folder, world_.clock, world_.dialogs, loop_, world_.window, world_.help,
       world_.clipboard, world_.pages, world_.folders, world_.pictures, world_.speller,
       world_.thesaurus, modem_, world_.launcher, world_.volumes},
      world_.variables,
      world_.navigator};
  forms::Label label_{world_.form, "Label3"};
  parts::PhoneDialer dialer_{world_.form, context_};
  QTimer steps_;
};

TEST_F(DialTest, TheModemAnswersInPiecesLateAndBehindRubbish) {
  std::vector<std::string> pieces{std::string("\xFF\0\x11\x13~", 5), "ATDT 555-0100;\r\r\nO",
                                  "K\r\n"};
  Meanwhile([&, seconds = 0]() mutable {
    if (!HasDialed()) return false;
    if (++seconds < 9) dialer_.timer.Tick();
    if (seconds % 3 == 0 && !pieces.empty()) {
      far_.Say(pieces.front());
      pieces.erase(pieces.begin());
    }
    return pieces.empty();
  });
  ExpectPickUp();
  Dial();
  EXPECT_EQ(far_.Heard(), "ATDT 555-0100;\rATH\r");
}

TEST_F(DialTest, AModemThatSaysOnlyRubbishIsGivenUp) {
  Meanwhile([&] {
    if (!HasDialed()) return false;
    far_.Say("NO CARRIER\r\n");
    dialer_.timer.Tick();
    return false;
  });
  ExpectNoAnswer();
  Dial();
  EXPECT_EQ(far_.Heard(), "ATDT 555-0100;\rATH\r");
}

TEST_F(DialTest, ALineThatBreaksIsGivenUp) {
  Meanwhile([&] {
    if (!HasDialed()) return false;
    far_.HangUp();
    dialer_.timer.Tick();
    return false;
  });
  ExpectNoAnswer();
  Dial();
}

TEST_F(DialTest, APortThatIsntThereOrIsNoneIsToldAtOnce) {
  testing::TemporaryFolder folder;
  folder.Write("port", "");
  for (const std::string& device : {std::string("/dev/pts/none"), folder.path() + "/port"}) {
    port_ = QString::fromStdString(device);
    ExpectInput("COM1: not available.", "Change the CommPort property to another port.");
    Dial();
  }
}

TEST(QtModem, ALineThatTakesNothingHoldsNobodyUp) {
  FarEnd far;
  QtModem modem([&] { return QStringList{far.port()}; });
  ASSERT_TRUE(modem.Open(1));
  modem.Send(std::string(1 << 20, 'A'));
  modem.Close();
  EXPECT_FALSE(modem.Open(0));
  EXPECT_FALSE(modem.Open(2));
}

TEST(QtModem, ReceivesNothingThatCameBeforeTheNumberWasSent) {
  FarEnd far;
  QtModem modem([&] { return QStringList{far.port()}; });
  const int near = ::open(far.port().toLocal8Bit().constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
  ASSERT_TRUE(modem.Open(1));
  far.Say("OK");
  // Until it has come through; nothing reads it meanwhile.
  for (int waiting = 0; waiting < 2; ::sched_yield())
    ASSERT_EQ(::ioctl(near, FIONREAD, &waiting), 0);
  ::close(near);
  modem.ClearInput();
  far.Say("BUSY");
  std::string received;
  EXPECT_TRUE(QTest::qWaitFor([&] { return (received += modem.Receive()).size() >= 4; }));
  EXPECT_EQ(received, "BUSY");
}

TEST(QtLauncher, TakesAddressesOfTheWebAndOfMailOnly) {
  std::string opened;
  const testing::TemporaryFolder folder;
  QtLauncher launcher(QString::fromStdString(folder.path()), [&](const QUrl& url) {
    opened = url.toEncoded().toStdString();
    return true;
  });
  const struct {
    std::string typed;
    std::string web;   // what is opened for it as a web address; empty for nothing
    std::string mail;  // and as an e-mail address
  } cases[] = {
      {"www.example.com", "http://www.example.com", ""},
      {" WWW.Example.com/a b ", "http://www.example.com/a%20b", ""},
      {"https://example.com/?a=1", "https://example.com/?a=1", ""},
      {"HTTP://example.com", "http://example.com", ""},
      {"http:", "", ""},
      {"http://", "", ""},
      {"httpd -h", "", ""},
      {"file:///etc/passwd", "", ""},
      {"/etc/passwd", "", ""},
      {"javascript:alert(1)", "", ""},
      {"ftp://example.com", "", ""},
      {"ann@example.com", "", "mailto:ann@example.com"},
      {" a.b+c@example.com ", "", "mailto:a.b+c@example.com"},
      {"ann@example.com?attach=/etc/passwd", "", ""},
      {"ann@example.com,bob@example.com", "", ""},
      {"ann@", "", ""},
      {"@example.com", "", ""},
      {"--help", "", ""},
      {"", "", ""},
  };
  for (const auto& one : cases) {
    opened.clear();
    EXPECT_EQ(launcher.OpenWeb(one.typed), !one.web.empty()) << one.typed;
    EXPECT_EQ(opened, one.web) << one.typed;
    opened.clear();
    EXPECT_EQ(launcher.WriteMail(one.typed), !one.mail.empty()) << one.typed;
    EXPECT_EQ(opened, one.mail) << one.typed;
  }
  EXPECT_TRUE(launcher.OpenProgramFolder());
  EXPECT_EQ(opened, "file://" + folder.path());
  // A file in its place, which the system might run, is not opened.
  opened.clear();
  folder.Write("note", "");
  const QString file = QString::fromStdString(folder.path() + "/note");
  EXPECT_FALSE(QtLauncher(file, [](const QUrl&) { return true; }).OpenProgramFolder());
}

}  // namespace
}  // namespace tarnwell::desktop
