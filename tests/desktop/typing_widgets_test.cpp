// The widgets that take a text, and the keys and clicks in them.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <functional>

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "support/form_rig.h"

namespace tarnwell::desktop {
namespace {

class TypingWidgets : public ::testing::Test {
 protected:
  void SetUp() override {
    year_.SetItems({"2025", "2026"});
    year_.SetText("2026");
    year_.on_take = [this] { ++taken_; };
    name_.SetItems({"Dentist", "Rent"});
    name_.on_take = year_.on_take;
    view_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view_.get()));
  }
  template <typename WidgetClass>
  WidgetClass* Find(const char* name) {
    return view_->findChild<WidgetClass*>(QLatin1String(name));
  }

  testing::FormRig rig_;
  forms::TextField field_{rig_.form, "Text1"};
  forms::TypedCombo year_{rig_.form, "Combo1", {.max_length = 4, .characters = "0123456789"}};
  forms::TypedCombo name_{rig_.form, "Combo2", {.completes = true}};
  forms::TextBox notes_{rig_.form, "Text2", {.max_length = 10}};
  forms::Command save_{rig_.form, "Command1", "&Save"};
  int taken_ = 0;
  std::unique_ptr<QWidget> view_{
      Column({Widget(field_), Widget(year_), Widget(name_), Widget(notes_), Widget(save_)})};
  QLineEdit* line_ = Find<QLineEdit>("Text1");
  QComboBox* year_box_ = Find<QComboBox>("Combo1");
  QComboBox* name_box_ = Find<QComboBox>("Combo2");
  QPlainTextEdit* notes_box_ = Find<QPlainTextEdit>("Text2");
};

TEST_F(TypingWidgets, AFieldShowsWhatItsFormMarksAlsoWhenItIsEnteredAfterwards) {
  field_.SetText("1200");
  notes_.Focus();
  field_.Select(1, 3);
  EXPECT_EQ(line_->selectedText(), QStringLiteral("20"));
  line_->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(line_->selectedText(), QStringLiteral("20"));
  QTest::keyClick(line_, Qt::Key_End);
  field_.SetColor(0x0000FF);  // another change doesn't mark it again
  EXPECT_FALSE(line_->hasSelectedText());
  field_.PlaceCaret(2);
  QTest::keyClicks(line_, QStringLiteral("x"));
  EXPECT_EQ(field_.text(), "12x00");
}

TEST_F(TypingWidgets, AComboIsTypedIntoAndTakenByEnter) {
  year_box_->setFocus(Qt::TabFocusReason);
  QTest::keyClicks(year_box_, QStringLiteral("19x98"));
  EXPECT_EQ(year_box_->currentText(), QStringLiteral("1998"));
  EXPECT_EQ(taken_, 0);
  QTest::keyClick(year_box_, Qt::Key_Return);
  EXPECT_EQ(taken_, 1);
  EXPECT_EQ(year_.taken(), "1998");
  QTest::keyClick(year_box_, Qt::Key_Backspace);  // it is marked
  QTest::keyClick(year_box_, Qt::Key_Escape);
  EXPECT_EQ(year_box_->currentText(), QStringLiteral("1998"));
  QTest::keyClick(year_box_, Qt::Key_Down);
  EXPECT_EQ(year_.taken(), "2025");
  EXPECT_EQ(taken_, 2);
}

TEST_F(TypingWidgets, ATypedCharacterStaysWhereItWasTypedThoughTheTextIsAnItemThen) {
  year_.SetText("226");
  year_box_->setFocus();
  year_.PlaceCaret(1);
  QTest::keyClicks(year_box_, QStringLiteral("0"));
  EXPECT_EQ(year_.selected(), 1);
  QTest::keyClick(year_box_, Qt::Key_Backspace);
  EXPECT_EQ(year_.text(), "226");
  EXPECT_EQ(year_box_->currentText(), QStringLiteral("226"));
}

TEST_F(TypingWidgets, ANameIsCompletedAndOnlyTakenByEnterOrAPick) {
  name_box_->setFocus();
  QTest::keyClicks(name_box_, QStringLiteral("re"));
  EXPECT_EQ(name_box_->currentText(), QStringLiteral("rent"));
  EXPECT_EQ(name_box_->lineEdit()->selectedText(), QStringLiteral("nt"));
  field_.Focus();
  EXPECT_EQ(taken_, 0);
  EXPECT_EQ(name_.text(), "rent");

  name_.on_open = [] { return false; };
  name_box_->showPopup();
  EXPECT_FALSE(name_box_->view()->isVisible());
  name_.on_open = [this] {
    name_.SetItems({"Bank", "Car"});
    return true;
  };
  name_box_->showPopup();
  ASSERT_TRUE(QTest::qWaitFor([this] { return name_box_->view()->isVisible(); }));
  QTest::keyClick(name_box_->view(), Qt::Key_Home);
  QTest::keyClick(name_box_->view(), Qt::Key_Return);
  EXPECT_EQ(name_.taken(), "Bank");
  EXPECT_EQ(taken_, 1);
}

TEST_F(TypingWidgets, ATextOfSeveralLinesKeepsItsLineEndsItsCaretAndItsLength) {
  notes_box_->setFocus();
  QTest::keyClicks(notes_box_, QStringLiteral("ab"));
  QTest::keyClick(notes_box_, Qt::Key_Return);
  QTest::keyClicks(notes_box_, QStringLiteral("cdef"));
  EXPECT_EQ(notes_.text(), "ab\r\ncdef");
  notes_.Select(4, 6);
  EXPECT_EQ(notes_box_->textCursor().selectedText(), QStringLiteral("cd"));
  notes_.PlaceCaret(1);
  notes_box_->insertPlainText(QStringLiteral("1日3"));
  EXPECT_EQ(notes_.text(), "a1?b\r\ncdef");
  EXPECT_EQ(notes_box_->textCursor().position(), 3);

  notes_.on_enter = [] { return true; };
  notes_.SetText("a\xA0\nb");  // neither the blank nor the line end is changed by being shown
  QTest::keyClick(notes_box_, Qt::Key_Return);
  EXPECT_EQ(notes_.text(), "a\xA0\nb");
  notes_.SetLocked(true);
  QTest::keyClicks(notes_box_, QStringLiteral("x"));
  EXPECT_EQ(notes_.text(), "a\xA0\nb");
  EXPECT_EQ(notes_box_->toPlainText().size(), 4);
}

TEST_F(TypingWidgets, ALockedFieldIsClickedAndCopiedButNotTypedIntoAndTabPassesItBy) {
  int clicks = 0;
  field_.on_click = [&] { ++clicks; };
  field_.SetText("Acme");
  field_.SetLocked(true);
  QTest::mouseClick(line_, Qt::LeftButton);
  EXPECT_TRUE(line_->hasFocus());
  EXPECT_EQ(clicks, 1);
  QTest::keyClicks(line_, QStringLiteral("x"));
  EXPECT_EQ(field_.text(), "Acme");
  line_->selectAll();
  line_->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Acme"));
  Find<QWidget>("Combo1")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_FALSE(line_->hasFocus());
  field_.SetLocked(false);
  line_->setFocus();
  QTest::keyClicks(line_, QStringLiteral("x"));
  EXPECT_NE(field_.text(), "Acme");
}

TEST_F(TypingWidgets, AFieldThatMayNotBeLeftKeepsTheFocusFromAClick) {
  int saves = 0;
  save_.on_click = [&] { ++saves; };
  auto* save = Find<QWidget>("Command1");
  save->setFocusPolicy(Qt::StrongFocus);
  field_.Focus();
  field_.on_leave = [this] {
    if (field_.text().empty()) field_.Focus();
  };
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_TRUE(line_->hasFocus());
  EXPECT_EQ(saves, 0);
  field_.SetText("x");
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(saves, 1);
}

TEST_F(TypingWidgets, WhatWasTypedIsTakenBackAndDoneAgain) {
  struct Case {
    QWidget* widget;
    std::function<std::string()> text;
    const char* typed;
    std::string before;
  };
  field_.SetText("1");
  notes_.SetText("1");
  name_.SetText("1");
  const Case cases[] = {
      {line_, [this] { return field_.text(); }, "12", "1"},
      {year_box_, [this] { return year_.text(); }, "2025", "2026"},
      {name_box_, [this] { return name_.text(); }, "Dent", "1"},
      {notes_box_, [this] { return notes_.text(); }, "12", "1"},
  };
  for (const auto& [widget, text, typed, before] : cases) {
    SCOPED_TRACE(widget->objectName().toStdString());
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, QLatin1String(typed));
    const std::string after = text();
    for (int i = 0; i < 20 && text() != before; ++i) {
      QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(text(), before);
    for (int i = 0; i < 20 && text() != after; ++i) {
      QTest::keyClick(widget, Qt::Key_Y, Qt::ControlModifier);
    }
    EXPECT_EQ(text(), after);
  }
}

}  // namespace
}  // namespace tarnwell::desktop
