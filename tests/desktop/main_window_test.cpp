#include "desktop/main_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "desktop/sample_form.h"
#include "desktop/services/qt_event_loop.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

using testing::SampleForm;

FormLook SampleLook(forms::Form& form) {
  auto& sample = dynamic_cast<SampleForm&>(form);
  return {Widget(sample.panel,
                 Column({Widget(sample.city), Widget(sample.save), Widget(sample.leave)}))};
}

// The real window and the real event loop around made-up forms.
class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    navigator_.SetContext(context_);
    for (const char* name : {"Lower", "Upper"}) {
      navigator_.Register(name, [name](forms::Context& context) {
        return std::make_unique<SampleForm>(context, name);
      });
    }
    window_.Follow(navigator_);
    SampleForm::unloads = 0;
  }

  SampleForm& Form(const char* name) { return dynamic_cast<SampleForm&>(*navigator_.Find(name)); }
  QPushButton* Button(const char* form, const char* name) {
    return window_.PageOf(Form(form))->findChild<QPushButton*>(QLatin1String(name));
  }

  // No timer is still to come that fits the window to its frame.
  bool HasMetItsFrame() {
    const auto timers = window_.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_FALSE(timers.isEmpty());
    return std::ranges::none_of(timers, [](const QTimer* timer) { return timer->isActive(); });
  }

  testing::TemporaryFolder temporary_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), temporary_.path()};
  testing::FakeClock clock_;
  testing::ScriptedDialogs dialogs_;
  QtEventLoop loop_;
  testing::FakeHelp help_;
  testing::FakeClipboard clipboard_;
  testing::FakePages pages_;
  testing::FakeFolders folders_;
  testing::FakePictures pictures_;
  testing::FakeSpeller speller_;
  testing::FakeThesaurus thesaurus_;
  testing::FakeModem modem_;
  testing::FakeLauncher launcher_;
  testing::FakeVolumes volumes_;
  forms::ProgramVariables variables_;
  MainWindow window_{SampleLook, help_};
  forms::Navigator navigator_;
  forms::Context context_{folder_,    clock_,    dialogs_, loop_,      window_,   help_,
                          clipboard_, pages_,    folders_, pictures_,  speller_,  thesaurus_,
                          modem_,     launcher_, volumes_, variables_, navigator_};
};

TEST_F(MainWindowTest, TheTopFormLendsItsTitleMenusAndStatus) {
  navigator_.Show("Lower");
  navigator_.Show("Upper");
  Form("Upper").SetCaption("Caf\xE9");
  Form("Lower").SetCaption("Below");
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Café"));
  EXPECT_EQ(window_.menuBar()->actions().size(), 1);
  EXPECT_TRUE(window_.menuBar()->isVisible());
  Form("Upper").menus().SetVisible(false);
  EXPECT_FALSE(window_.menuBar()->isVisible());
  window_.close();
  EXPECT_EQ(SampleForm::unloads, 1);
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Below"));
}

TEST_F(MainWindowTest, AFormThatRefusesKeepsTheWindow) {
  navigator_.Show("Lower");
  Form("Lower").stays = true;
  window_.close();
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(SampleForm::unloads, 0);
}

TEST_F(MainWindowTest, EscapeAndF1ReachTheTopForm) {
  navigator_.Show("Lower");
  navigator_.Show("Upper");
  auto* field = window_.PageOf(Form("Upper"))->findChild<QLineEdit*>(QStringLiteral("Text1"));
  QTest::keyClick(field, Qt::Key_F1);
  EXPECT_EQ(help_.shown, std::vector<int>{1000});  // a form without a help page of its own
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_EQ(navigator_.top()->name(), "Lower");
}

TEST_F(MainWindowTest, AKeyThatNothingTakesComesToAnEnd) {
  navigator_.Show("Lower");
  FormPage* page = window_.PageOf(Form("Lower"));
  auto* field = page->findChild<QLineEdit*>(QStringLiteral("Text1"));
  for (QWidget* focus : {static_cast<QWidget*>(window_.menuBar()), static_cast<QWidget*>(page),
                         static_cast<QWidget*>(field), static_cast<QWidget*>(&window_)}) {
    focus->setFocus();
    for (const Qt::Key key : {Qt::Key_Q, Qt::Key_F7, Qt::Key_Down}) {
      QTest::keyClick(window_.windowHandle(), key, Qt::AltModifier);
      QTest::keyClick(focus, key);
    }
  }
  window_.setFocus();
  QTest::keyClick(window_.windowHandle(), Qt::Key_Escape);
  EXPECT_EQ(SampleForm::unloads, 1);
}

TEST_F(MainWindowTest, HelpComesFromEveryPlace) {
  navigator_.Show("Lower");
  std::size_t times = 0;
  const auto press = [&](QWidget* place) {
    QTest::keyClick(place, Qt::Key_F1);
    EXPECT_EQ(help_.shown.size(), ++times) << place->metaObject()->className();
  };
  FormPage* page = window_.PageOf(Form("Lower"));
  for (const char* name : {"Text1", "Command1"}) press(page->findChild<QWidget*>(name));
  press(&window_);
  press(window_.menuBar());
  page->menus().front()->popup(QPoint(10, 10));
  press(page->menus().front().get());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  QMessageBox box(&window_);
  box.setWindowModality(Qt::WindowModal);
  box.show();
  press(&box);
  box.hide();
  QWidget elsewhere;
  QTest::keyClick(&elsewhere, Qt::Key_F1);
  EXPECT_EQ(help_.shown.size(), times);
}

TEST_F(MainWindowTest, AMnemonicGivesTheFocusToWhatItChooses) {
  navigator_.Show("Lower");
  int saved = 0;
  Form("Lower").save.on_click = [&] { ++saved; };
  Form("Lower").city.Focus();
  Form("Lower").city.on_leave = [this] { Form("Lower").city.Focus(); };
  QTest::keyClick(window_.windowHandle(), Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(saved, 0) << "the field before may not be left";
  Form("Lower").city.on_leave = nullptr;
  QTest::keyClick(window_.windowHandle(), Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(saved, 1);
  EXPECT_TRUE(Form("Lower").save.focused());
  // A letter of the menu bar that no control has.
  QTest::keyClick(window_.windowHandle(), Qt::Key_O, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  // The menu bar is reached though every letter may be a control's.
  QTest::keyClick(window_.windowHandle(), Qt::Key_F10);
  EXPECT_NE(window_.menuBar()->activeAction(), nullptr);
  if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
}

TEST_F(MainWindowTest, ARightClickPopsUpOnlyWhatCanBeChosen) {
  navigator_.Show("Lower");
  FormPage* page = window_.PageOf(Form("Lower"));
  for (const bool enabled : {true, false}) {
    Form("Lower").menus().SetEnabled(enabled);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(page, &event);
    EXPECT_EQ(QApplication::activePopupWidget() != nullptr, enabled);
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  }
}

TEST_F(MainWindowTest, AMenuThatCantBeOpenedIsGreyed) {
  navigator_.Show("Lower");
  const auto picture = [this] { return window_.menuBar()->grab().toImage(); };
  const QImage live = picture();
  forms::MenuItem& menu = *Form("Lower").menus().items().front();
  menu.SetEnabled(false);
  EXPECT_NE(picture(), live);
  menu.SetEnabled(true);
  EXPECT_EQ(picture(), live);
}

TEST_F(MainWindowTest, AFormAndItsWidgetsGoOnlyWhenNoHandlerIsLeft) {
  navigator_.Show("Lower");
  navigator_.Show("Upper");
  SampleForm& upper = Form("Upper");
  QPointer<QPushButton> button = Button("Upper", "Command1");
  bool alive_in_handler = false;
  upper.save.on_click = [&] {
    navigator_.Unload(upper);
    for (int i = 0; i < 20; ++i) loop_.WaitALittle();
    alive_in_handler = !button.isNull() && upper.name() == "Upper";
  };
  button->click();
  EXPECT_TRUE(alive_in_handler);
  EXPECT_TRUE(QTest::qWaitFor([&] { return button.isNull(); }, 2000));
}

TEST_F(MainWindowTest, ClosingTheWindowInALongRunIsSafe) {
  navigator_.Show("Lower");
  navigator_.Show("Upper");
  SampleForm& upper = Form("Upper");
  int steps = 0;
  upper.save.on_click = [&] {
    QTimer::singleShot(0, &window_, [this] { window_.close(); });
    for (; steps < 50; ++steps) loop_.Yield();
    upper.city.SetText("done");
  };
  Button("Upper", "Command1")->click();
  EXPECT_EQ(steps, 50);
  EXPECT_EQ(SampleForm::unloads, 1);
  EXPECT_EQ(navigator_.top()->name(), "Lower");
}

TEST_F(MainWindowTest, AModalFormIsADialogThatOnlyItselfEnds) {
  navigator_.Show("Lower");
  bool was_dialog = false;
  QTimer::singleShot(50, &window_, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    was_dialog = dialog && dialog->isAncestorOf(Button("Upper", "Command2"));
    Form("Upper").stays = true;
    dialog->close();
    EXPECT_NE(navigator_.Find("Upper"), nullptr);
    // A person can't close the window below a modal form.
    EXPECT_FALSE(Form("Lower").save.Reachable());
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  navigator_.ShowModal("Upper");
  EXPECT_TRUE(was_dialog);
  EXPECT_EQ(navigator_.top()->name(), "Lower");
}

TEST_F(MainWindowTest, TheEndInAModalWaitComesBackToTheCaller) {
  navigator_.Show("Lower");
  QTimer::singleShot(20, &window_, [&] { navigator_.EndProgram(); });
  navigator_.ShowModal("Upper");
  EXPECT_TRUE(navigator_.ended());
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(MainWindowTest, SizesAreTwipsOfWholePixels) {
  navigator_.Show("Lower");
  forms::Window& window = window_;
  window.SetMinimumSize({15100, 11200});
  window.SetSize({15100, 11200});
  EXPECT_EQ(window.size(), (forms::Size{1007 * 15, 747 * 15}));
  EXPECT_EQ(window.screen(), (forms::Size{1024 * 15, 768 * 15}));
  ASSERT_GT(window_.frameSize().width(), window_.width());
  for (int round = 0; round < 3; ++round) {
    for (const bool maximized : {true, false}) {
      const forms::Size size =
          maximized ? forms::Size{1024 * 15, 768 * 15} : forms::Size{1007 * 15, 747 * 15};
      window.SetMaximized(maximized);
      if (!maximized) {
        EXPECT_EQ(window.size(), size);  // at once
      }
      EXPECT_TRUE(QTest::qWaitFor([this] { return HasMetItsFrame(); }));
      EXPECT_EQ(window.maximized(), maximized);
      EXPECT_EQ(window.size(), size);
    }
  }
}

// Each scale is a process of its own.
TEST_F(MainWindowTest, TheScreenIsAsLargeAsTheMonitorHoweverItIsEnlarged) {
  constexpr const char* kScale = "TARNWELL_TEST_SCALE";  // main() hands it on to Qt
  if (qEnvironmentVariableIsSet(kScale)) {
    const forms::Size screen = static_cast<forms::Window&>(window_).screen();
    EXPECT_EQ(screen, (forms::Size{1024 * 15, 768 * 15}));
    EXPECT_EQ(window_.room(), (forms::Size{512 * 15, 384 * 15}));
    return;
  }
  QProcess enlarged;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QLatin1String(kScale), QStringLiteral("2"));
  enlarged.setProcessEnvironment(environment);
  enlarged.setProcessChannelMode(QProcess::ForwardedChannels);
  enlarged.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("--gtest_brief=1"),
                  QStringLiteral("--gtest_filter=MainWindowTest.TheScreenIsAsLargeAs*")});
  ASSERT_TRUE(enlarged.waitForFinished());
  EXPECT_EQ(enlarged.exitCode(), 0);
}

TEST_F(MainWindowTest, NoSizeIsLargerThanTheScreen) {
  navigator_.Show("Lower");
  forms::Window& window = window_;
  window.SetMinimumSize({20000, 20000});
  window.SetSize({30000, 20000});
  EXPECT_EQ(window.room(), (forms::Size{1024 * 15, 768 * 15}));
  EXPECT_EQ(window.size(), window.room());
  EXPECT_LE(window_.minimumHeight(), 768);
}

TEST_F(MainWindowTest, AScreenReaderIsToldWhatTheStatusBarSays) {
  navigator_.Show("Lower");
  Form("Lower").SetStatus("3 items");
  auto* status = window_.statusBar()->findChild<QLabel*>();
  EXPECT_EQ(QAccessible::queryAccessibleInterface(status)->text(QAccessible::Name),
            QStringLiteral("3 items"));
}

TEST_F(MainWindowTest, AnEndOfTheSessionLosesNothingUnasked) {
  navigator_.Show("Lower");
  EXPECT_TRUE(window_.EndSession(true));  // nothing to save
  EXPECT_EQ(navigator_.top(), &Form("Lower"));
  Form("Lower").SetUnsaved(true);
  EXPECT_FALSE(window_.EndSession(false));
  EXPECT_EQ(SampleForm::unloads, 0);
  Form("Lower").stays = true;  // Cancel
  EXPECT_FALSE(window_.EndSession(true));
  EXPECT_EQ(SampleForm::unloads, 0);
  // One above it has nothing to save and only goes.
  navigator_.Show("Upper");
  Form("Lower").stays = false;
  EXPECT_TRUE(window_.EndSession(true));
  EXPECT_EQ(SampleForm::unloads, 2);
}

TEST_F(MainWindowTest, AWindowComesBackFromAMonitorThatHasGone) {
  navigator_.Show("Lower");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
  ASSERT_TRUE(QTest::qWaitFor([this] { return HasMetItsFrame(); }));
  const QRect screen = window_.QMainWindow::screen()->availableGeometry();
  for (const QPoint place : {QPoint(5000, 100), QPoint(-3000, -2000), QPoint(100, 3000)}) {
    window_.move(place);
    emit qApp->screenRemoved(nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.contains(window_.frameGeometry().center()); }));
  }
  window_.move(30, 40);  // that one can be reached, so it stays
  const QPoint stays = window_.pos();
  emit qApp->screenRemoved(nullptr);
  QCoreApplication::processEvents();
  EXPECT_EQ(window_.pos(), stays);
}

}  // namespace
}  // namespace tarnwell::desktop
