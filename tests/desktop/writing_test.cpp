// Writing with the keys and the mouse of the real window.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QStandardPaths>
#include <QTest>
#include <QTextEdit>
#include <fstream>
#include <iterator>

#include "desktop/desktop.h"
#include "desktop/pdf_lines.h"
#include "desktop/services/page_output.h"
#include "desktop/when_modal.h"
#include "richtext/sketch.h"
#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

class Writing : public ::testing::Test {
 protected:
  Writing() {
    desktop_.program().variables().SplashShown = 99;
    desktop_.navigator().Show("WorkArea1");
    for (const char* button : {"SSCommand11(2)", "SSCommand14(0)"}) {
      dynamic_cast<forms::Command&>(*hub().Find(button)).Click();
    }
    Focus("Rtext1");
  }
  workarea::WorkArea1& hub() {
    return dynamic_cast<workarea::WorkArea1&>(*desktop_.navigator().top());
  }
  QWidget& Of(const char* name) {
    return *desktop_.window().findChild<QWidget*>(QString::fromLatin1(name));
  }
  void Focus(const char* name) { Of(name).setFocus(Qt::MouseFocusReason); }
  // As the window sends it: to what has the focus, and on to what is around that.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(desktop_.window().focusWidget(), key, modifiers);
  }
  void Type(const char* text) {
    QTest::keyClicks(desktop_.window().focusWidget(), QString::fromLatin1(text));
  }
  std::string shown() { return richtext::Sketch(hub().document.text.document()); }

  const testing::TemporaryFolder folder_;
  Desktop desktop_{
      {QString::fromStdString(folder_.path()), QStringLiteral(TARNWELL_SOURCE_DIR "/data")}};
};

TEST_F(Writing, KeysWorkWhereverTheSystemHasAnotherUseForThem) {
  const auto control = Qt::ControlModifier;
  Type("one two");
  EXPECT_EQ(desktop_.window().windowTitle(), "* Company/Employee Data Area");
  Key(Qt::Key_A, control);
  Key(Qt::Key_B, control);
  EXPECT_EQ(shown(), "*one two*");
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(Of("Toolbar1Button(2)")).isChecked());
  for (const auto redo : {QKeyCombination(control, Qt::Key_Y),
                          QKeyCombination(control | Qt::ShiftModifier, Qt::Key_Z)}) {
    Key(Qt::Key_Z, control);
    EXPECT_EQ(shown(), "one two");
    Key(redo.key(), redo.keyboardModifiers());
    EXPECT_EQ(shown(), "*one two*");
  }
  const std::pair<Qt::Key, richtext::Alignment> places[] = {
      {Qt::Key_E, richtext::Alignment::kCenter},
      {Qt::Key_R, richtext::Alignment::kRight},
      {Qt::Key_J, richtext::Alignment::kJustify},
      {Qt::Key_L, richtext::Alignment::kLeft}};
  for (const auto& [key, place] : places) {
    Key(key, control);
    EXPECT_EQ(hub().document.text.SelectionAlignment(), place);
  }
  EXPECT_EQ(hub().document.text.SelectedText(), "one two");

  Key(Qt::Key_F, control);
  EXPECT_EQ(desktop_.window().focusWidget(), &Of("Findbar1Text(0)"));
  Type("two");
  Key(Qt::Key_Return);
  EXPECT_EQ(hub().document.text.SelectedText(), "two");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Of("Findbar1").isVisible());
  EXPECT_EQ(desktop_.window().focusWidget(), &Of("Rtext1"));

  testing::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
  Key(Qt::Key_S, control);
  EXPECT_EQ(desktop_.window().windowTitle(), "Company/Employee Data Area");
  EXPECT_THAT(folder_.Read("EmployPolicy0.Fl2"), HasSubstr("one two"));
}

TEST_F(Writing, AWordOfAnotherScriptIsFoundAsItIsTyped) {
  hub().document.text.Type("?? \u0414\u0430");
  Key(Qt::Key_F, Qt::ControlModifier);
  QInputMethodEvent typed;
  typed.setCommitString(QStringLiteral("\u0434\u0430"));
  QApplication::sendEvent(desktop_.window().focusWidget(), &typed);
  Key(Qt::Key_Return);
  EXPECT_EQ(hub().document.text.SelectedText(), "\u0414\u0430");
}

TEST_F(Writing, TheMouseReachesBarAndMenus) {
  Type("ab");
  QTest::mouseClick(&Of("Toolbar1Button(12)"), Qt::LeftButton);
  EXPECT_EQ(shown(), "1.>ab");
  EXPECT_EQ(desktop_.window().focusWidget(), &Of("Rtext1"));
  testing::WhenModal([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
  QTest::mouseClick(&Of("Toolbar1Button(15)"), Qt::LeftButton);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->actions().front()->trigger();
  menu->close();
  EXPECT_EQ(shown(), "1.>ab|[,,;,,;,,]|");
  auto& view = dynamic_cast<QTextEdit&>(Of("Rtext1"));
  const QPoint place = view.cursorRect().center();
  QContextMenuEvent click(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
  QApplication::sendEvent(view.viewport(), &click);
  menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QAction* below = menu->findChild<QAction*>(QStringLiteral("mT(1)"));
  ASSERT_NE(below, nullptr);
  below->trigger();
  menu->close();
  EXPECT_EQ(shown(), "1.>ab|[,,;,,;,,;,,]|");
}

TEST(WritingOnPaper, AContractHasItsFootersAndPageNumbers) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  testing::ProgramRig rig;
  std::ifstream supplied(TARNWELL_SOURCE_DIR "/data/EmployPolicy5.Fl1", std::ios::binary);
  rig.temporary.Write("EmployPolicy5.Fl1",
                      std::string(std::istreambuf_iterator<char>(supplied), {}));
  rig.Start();
  rig.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& hub = rig.Get<workarea::WorkArea1>("WorkArea1");
  for (const char* button : {"SSCommand11(2)", "SSCommand14(5)"}) {
    dynamic_cast<forms::Command&>(*hub.Find(button)).Click();
  }
  hub.document.insert_template.Click();
  hub.PressKey("F8");
  hub.document.text.Type("November 23, 2026");
  hub.PressKey("Ctrl+P");
  hub.printing.print.print.Click();
  const QString file = QString::fromStdString(rig.temporary.path()) + "/contract.pdf";
  ASSERT_TRUE(WritePdf(rig.pages.printed.at(0), file));
  const auto lines = testing::LinesOfPdf(file);
  EXPECT_THAT(lines, Contains("Date of Agreement November 23, 2026"));
  for (const char* footer : {"Employment Agreement Page 1", "Employment Agreement Page 2"}) {
    EXPECT_THAT(lines, Contains(footer));
  }
}

}  // namespace
}  // namespace tarnwell::desktop
