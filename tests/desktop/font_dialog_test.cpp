// The dialogue for the printer's font, as a person uses it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "desktop/services/message_dialogs.h"
#include "desktop/when_modal.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

using testing::WhenModal;

// A family that the machine has, so that the list can show it.
forms::Font Start() {
  forms::Font font;
  font.name = ToCore(QFontInfo(QApplication::font()).family());
  font.size = 12;
  font.bold = true;
  font.underline = true;
  font.color = 0x0000FF;
  return font;
}

void Press(QWidget* dialog, QDialogButtonBox::StandardButton which) {
  for (auto* box : dialog->findChildren<QDialogButtonBox*>()) {
    if (QPushButton* button = box->button(which); button && button->isVisible()) {
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
  }
  ADD_FAILURE() << "no such button";
}

QCheckBox* Box(QWidget* dialog, const char* text) {
  for (auto* box : dialog->findChildren<QCheckBox*>()) {
    if (Spoken(ToCore(box->text())) == QLatin1String(text)) return box;
  }
  return nullptr;
}

// The field for the size is the one that takes numbers alone.
QLineEdit* SizeField(QWidget* dialog) {
  for (auto* field : dialog->findChildren<QLineEdit*>()) {
    if (field->validator()) return field;
  }
  return nullptr;
}

QString FamilyShown(QWidget* dialog) {
  for (auto* list : dialog->findChildren<QListWidget*>()) {
    if (list->accessibleName().isEmpty()) {
      const auto chosen = list->selectedItems();
      return chosen.isEmpty() ? QString() : chosen.front()->text();
    }
  }
  return QStringLiteral("no list");
}

TEST(FontDialogue, OpensOnTheFontInUseAndChangesNothingByItself) {
  forms::Font start = Start();
  for (const char* const name : {start.name.c_str(), "Times Old Roman"}) {
    start.name = name;
    MessageDialogs dialogs;
    WhenModal([name](QWidget* modal) {
      EXPECT_EQ(ToCore(FamilyShown(modal)), name);
      EXPECT_EQ(SizeField(modal)->text(), QStringLiteral("12"));
      EXPECT_TRUE(Box(modal, "Bold")->isChecked() && !Box(modal, "Italic")->isChecked());
      Press(modal, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(dialogs.ChooseFont(start), forms::FontParts());
  }
}

TEST(FontDialogue, WhatIsMixedIsShownOpenAndStaysSo) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) {
    EXPECT_EQ(FamilyShown(modal), QString());
    EXPECT_EQ(SizeField(modal)->text(), QString());
    EXPECT_EQ(Box(modal, "Underline")->checkState(), Qt::PartiallyChecked);
    Box(modal, "Bold")->click();
    Press(modal, QDialogButtonBox::Ok);
  });
  forms::FontParts bold;
  bold.bold = true;
  EXPECT_EQ(dialogs.ChooseFont({}), bold);
}

TEST(FontDialogue, WhatIsChosenComesBack) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) {
    QLineEdit* size = SizeField(modal);
    QCheckBox* strike = Box(modal, "Strikeout");
    QCheckBox* underline = Box(modal, "Underline");
    ASSERT_TRUE(size && strike && underline);
    size->selectAll();
    QTest::keyClicks(size, "24");
    strike->click();
    underline->click();
    WhenModal(
        [modal](QWidget* colors) {
          auto* choice = qobject_cast<QColorDialog*>(colors);
          ASSERT_NE(choice, nullptr);
          choice->setCurrentColor(QColor(0, 128, 0));
          choice->accept();
          Press(modal, QDialogButtonBox::Ok);
        },
        modal);
    for (auto* button : modal->findChildren<QPushButton*>()) {
      if (button->text() == QLatin1String("&Color...")) button->click();
    }
  });
  forms::FontParts expected;
  expected.size = 24;
  expected.strike = true;
  expected.underline = false;
  expected.color = 0x008000;
  EXPECT_EQ(dialogs.ChooseFont(Start()), expected);
}

TEST(FontDialogue, CancelAndEscapeGiveNothing) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) { Press(modal, QDialogButtonBox::Cancel); });
  EXPECT_EQ(dialogs.ChooseFont(Start()), std::nullopt);
  WhenModal([](QWidget* modal) { QTest::keyClick(modal, Qt::Key_Escape); });
  EXPECT_EQ(dialogs.ChooseFont(Start()), std::nullopt);
}

}  // namespace
}  // namespace tarnwell::desktop
