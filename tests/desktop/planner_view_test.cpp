#include <gtest/gtest.h>

#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <filesystem>

#include "desktop/desktop.h"
#include "desktop/when_modal.h"
#include "desktop/widgets/look.h"
#include "forms/form_names.h"
#include "planner/zcalandar1.h"
#include "settings/panel_colors.h"
#include "storage/file_system.h"
#include "storage/program_folder.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

// The names that Tab meets behind the first row's time, as long as they are the rows'.
QStringList NamesBehind(QWidget& start, int count) {
  QStringList names;
  for (QWidget* next = start.nextInFocusChain(); next != &start && names.size() < count;
       next = next->nextInFocusChain()) {
    if (next->focusPolicy() & Qt::TabFocus) names << next->objectName();
  }
  return names;
}

TEST(PlannerView, TabWalksARowFromLeftToRightWithTheTimePickerWhereItStands) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop({QString::fromStdString(temporary.path()), {}});
  desktop.navigator().Show(forms::form_names::kZcalandar1);
  auto& form = dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  auto* time = desktop.window().findChild<QLineEdit*>(QStringLiteral("Text1(0)"));
  ASSERT_NE(time, nullptr);
  EXPECT_EQ(NamesBehind(*time, 4), QStringList({"Combo1", "Text2(0)", "Option2(0)", "Text1(1)"}));
  form.times[1].Focus();
  EXPECT_EQ(NamesBehind(*time, 5),
            QStringList({"Text2(0)", "Option2(0)", "Text1(1)", "Combo1", "Text2(1)"}));
}

TEST(PlannerView, ArrowsMoveBetweenRowsAndANumberBoxIsReplacedByTyping) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop({QString::fromStdString(temporary.path()), {}});
  desktop.navigator().Show(forms::form_names::kZcalandar1);
  auto& form = dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  desktop.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
  const auto box = [&](const char* name) {
    return desktop.window().findChild<QLineEdit*>(QLatin1String(name));
  };
  QTest::keyClick(box("Text2(0)"), Qt::Key_Down);
  EXPECT_EQ(form.focus(), &form.entries[1]);
  QTest::keyClick(box("Text2(1)"), Qt::Key_Up);
  EXPECT_EQ(form.focus(), &form.entries[0]);

  form.recurrence.panel.SetVisible(true);
  form.recurrence.Open(text::MakeDate(2026, 3, 9), {"", "Dentist"});
  QTest::mouseClick(box("Text5"), Qt::LeftButton);
  QTest::keyClicks(box("Text5"), "5");
  EXPECT_EQ(form.recurrence.choice.every_weeks.text(), "5");
  QTest::mouseClick(box("Text4"), Qt::LeftButton);
  QTest::keyClicks(box("Text4"), "1");
  EXPECT_EQ(form.recurrence.choice.every_days.text(), "1");
  EXPECT_EQ(form.recurrence.choice.mode(), planner::RecurrenceMode::kDaily);
}

TEST(PlannerView, F1OnThePrintPanelIsAboutPrinting) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop(
      {QString::fromStdString(temporary.path()), QStringLiteral(TARNWELL_SOURCE_DIR "/data")});
  desktop.navigator().Show(forms::form_names::kZcalandar1);
  auto& form = dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  form.entries[0].Type("Dentist");
  testing::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
  form.save.Click();
  form.print_options.Click();
  for (const char* place : {"VSP1", "SSCommand80(4)", "Check83"}) {
    auto* widget = desktop.window().findChild<QWidget*>(QLatin1String(place));
    ASSERT_NE(widget, nullptr) << place;
    QTest::keyClick(widget, Qt::Key_F1);
    const auto windows = QApplication::topLevelWidgets();
    const QTextBrowser* help = nullptr;
    for (const QWidget* window : windows) {
      if (auto* found = window->findChild<QTextBrowser*>()) help = found;
    }
    ASSERT_NE(help, nullptr) << place;
    EXPECT_EQ(help->source().fileName(), QStringLiteral("1014.html")) << place;
    help->window()->close();
  }
}

// Whether this process has the note open that guards writes across two pages.
bool HoldsRedoNote() {
  for (const auto& open : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    if (std::filesystem::read_symlink(open, gone).filename() == ".tarnwell-redo") return true;
  }
  return false;
}

TEST(PlannerView, TheRedoNoteIsClosedBeforeTheProgramWaitsForItsUser) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop({QString::fromStdString(temporary.path()), {}});
  desktop.navigator().Show(forms::form_names::kZcalandar1);
  auto& form = dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  // Some day's record lies on two pages. The save that makes way for the recurrence shows no box.
  for (unsigned day = 1; day < 10 && !HoldsRedoNote(); ++day) {
    form.picker.SelectDay(text::MakeDate(2026, 3, day));
    form.entries[0].Type("Dentist");
    testing::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
    form.recurrence_buttons[0].Click();
  }
  ASSERT_TRUE(HoldsRedoNote());
  QEventLoop loop;
  QTimer::singleShot(1, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_FALSE(HoldsRedoNote());
}

TEST(PlannerView, WhatStandsOnAPanelReadsOnAnyColourOfIt) {
  for (const forms::Color color : {0x301808, 0xC8F0FF, 0x808080, 0x0000FF}) {
    const tarnwell::testing::TemporaryFolder temporary;
    storage::ProgramFolder folder(storage::RealFileSystem(), temporary.path());
    settings::WritePanelColor(folder, settings::PanelColor::kPlanner,
                              settings::StoredColor::Number(color));
    Desktop desktop({QString::fromStdString(temporary.path()), {}});
    desktop.navigator().Show(forms::form_names::kZcalandar1);
    int labels = 0;
    for (const char* panel : {"SSPanel1", "SSPanel3", "SSPanel80", "SSPanel90"}) {
      auto* widget = desktop.window().findChild<QWidget*>(QLatin1String(panel));
      ASSERT_NE(widget, nullptr);
      ASSERT_EQ(widget->palette().color(QPalette::Window), ToQColor(color)) << panel;
      for (const QLabel* label : widget->findChildren<QLabel*>()) {
        const QPalette& palette = label->palette();
        ++labels;
        EXPECT_GE(Contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)),
                  4.5)
            << panel << " " << label->text().toStdString();
      }
    }
    EXPECT_GT(labels, 10);
  }
}

}  // namespace
}  // namespace tarnwell::desktop
