// The program on a dark desktop, whose colours mustn't mix with its own.

#include "desktop/widgets/look.h"

#include <gtest/gtest.h>

#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleFactory>

#include "desktop/services/message_dialogs.h"
#include "desktop/services/qt_pages.h"
#include "desktop/when_modal.h"

namespace tarnwell::desktop {
namespace {

using testing::WhenModal;

constexpr double kReadable = 4.5;
constexpr double kVisible = 3;

// What a dark desktop hands to every program.
class DarkStyle : public QProxyStyle {
 public:
  DarkStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  QPalette standardPalette() const override {
    QPalette dark(QColor(0x31, 0x36, 0x3B), QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::PlaceholderText}) {
      dark.setColor(role, QColor(0xFC, 0xFC, 0xFC));
    }
    return dark;
  }
};

class DarkDesktop : public ::testing::Test {
 protected:
  DarkDesktop() { QApplication::setStyle(new DarkStyle); }
  ~DarkDesktop() override { QApplication::setStyle(QStyleFactory::create("Fusion")); }
};

struct Pair {
  QPalette::ColorRole text;
  QPalette::ColorRole ground;
};
constexpr Pair kPairs[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::PlaceholderText, QPalette::Base},
};

void ExpectReadable(const QWidget& widget) {
  for (const auto& [text, ground] : kPairs) {
    EXPECT_GE(Contrast(widget.palette().color(text), widget.palette().color(ground)), kReadable)
        << widget.metaObject()->className() << ": " << text << " on " << ground;
  }
}

// Looks at the dialogue that `open` brings, then closes it.
void ExpectReadableDialogue(const std::function<void()>& open) {
  int seen = 0;
  WhenModal([&](QWidget* dialogue) {
    ExpectReadable(*dialogue);
    for (QWidget* widget : dialogue->findChildren<QWidget*>()) {
      if (!widget->isVisible() || qobject_cast<QScrollBar*>(widget)) continue;
      ExpectReadable(*widget);
      ++seen;
    }
    static_cast<QDialog*>(dialogue)->reject();
  });
  open();
  EXPECT_GT(seen, 3);
}

void ExpectReadableDialogues() {
  MessageDialogs dialogs;
  QtPages pages;
  forms::Document document;
  document.pages.resize(1);
  ExpectReadableDialogue([&] { dialogs.Message({"Title", "Text", forms::Icon::kQuestion}); });
  ExpectReadableDialogue([&] { dialogs.ChooseColor(0); });
  ExpectReadableDialogue([&] { dialogs.ChooseFont({}); });
  ExpectReadableDialogue([&] { pages.Print(document); });
  ExpectReadableDialogue([&] { pages.ChooseSetup(document.setup); });
}

TEST_F(DarkDesktop, EveryDialogueIsReadableInEverySetOfColours) {
  for (const ToneSet set : kToneSets) {
    ApplyLook(*qApp, set);
    ExpectReadableDialogues();
  }
  ApplyLook(*qApp);
}

TEST_F(DarkDesktop, AScrollBarIsSeenOnEveryPanel) {
  for (const QColor ground : {QColor(Qt::black), QColor(0, 0, 128), QColor(Qt::white)}) {
    QWidget panel;
    panel.setPalette(PaletteOn(ground));
    QScrollBar bar(Qt::Vertical, &panel);
    bar.setRange(0, 100);
    bar.setPageStep(50);
    bar.resize(bar.sizeHint().width(), 300);
    const QImage image = bar.grab().toImage();
    const QColor handle = image.pixelColor(bar.width() / 2, 50);
    const QColor track = image.pixelColor(bar.width() / 2, 280);
    EXPECT_GE(Contrast(handle, track), kVisible) << ground.name().toStdString();
  }
}

}  // namespace
}  // namespace tarnwell::desktop
