#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <algorithm>
#include <map>
#include <set>

#include "desktop/key_world.h"
#include "desktop/widgets/text.h"
#include "forms/mnemonics.h"
#include "planner/zcalandar1.h"
#include "walk/soundness.h"

namespace tarnwell::desktop {
namespace {

using ::testing::IsEmpty;
using testing::KeyWorld;
using testing::kWays;
using testing::Way;

// More often than a key could go from parent to parent; what goes round comes by here again.
constexpr int kMostDeliveries = 100;

// Counts how often one key is delivered, and stops it where it would never end.
class KeyCounter : public QObject {
 public:
  KeyCounter() { qApp->installEventFilter(this); }
  int deliveries = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::KeyPress && watched->isWidgetType() &&
           ++deliveries > kMostDeliveries;
  }
};

std::vector<int> PlainKeys() {
  std::vector<int> keys{Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Backtab,  Qt::Key_Backspace,
                        Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,    Qt::Key_Insert,
                        Qt::Key_Delete, Qt::Key_Home,  Qt::Key_End,      Qt::Key_Left,
                        Qt::Key_Up,     Qt::Key_Right, Qt::Key_Down,     Qt::Key_PageUp,
                        Qt::Key_Alt,    Qt::Key_Menu,  Qt::Key_PageDown, Qt::Key_1,
                        Qt::Key_A};
  for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) keys.push_back(key);
  return keys;
}

class Keys : public ::testing::TestWithParam<Way> {
 protected:
  // The focus goes to nothing, to the menu bar and to each control; two of an array stand for all.
  void SendAllKeys() {
    Build();
    std::map<QString, int> of_array;
    QStringList names{QString(), QStringLiteral("the menu bar")};
    for (QWidget* widget : Page().findChildren<QWidget*>()) {
      const QString name = widget->objectName();
      if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible() && widget->isEnabled() &&
          !name.isEmpty() && ++of_array[name.section(QLatin1Char('('), 0, 0)] <= 2) {
        names << name;
      }
    }
    for (const QString& name : names) {
      for (int key : PlainKeys()) Send(name, key, Qt::NoModifier);
      for (int key = Qt::Key_0; key <= Qt::Key_Z; ++key) {
        // A letter that chooses a control does the same from everywhere; once is enough.
        const auto letter = static_cast<char>(QChar(key).toLower().toLatin1());
        if (key > Qt::Key_9 && key < Qt::Key_A) continue;
        if (!name.isEmpty() && forms::MnemonicTarget(Page().form(), letter)) continue;
        Send(name, key, Qt::AltModifier);
      }
    }
  }

 private:
  FormPage& Page() {
    return *world_->window.PageOf(*world_->program.navigator().Find(GetParam().form));
  }

  void Build() {
    world_.reset();
    world_ = std::make_unique<KeyWorld>(GetParam().form);
    forms::Form& form = world_->form();
    if (auto* planner = dynamic_cast<planner::Zcalandar1*>(&form)) {
      dynamic_cast<forms::TextField&>(*planner->Find("Text1(0)")).Type("9:30 AM");
      dynamic_cast<forms::TextField&>(*planner->Find("Text2(0)")).Type("Dentist");
    }
    Take(GetParam(), form);
    state_ = State();
  }

  // What a person could reach, which tells one panel from another.
  std::vector<const forms::Control*> State() {
    std::vector<const forms::Control*> reachable;
    for (const forms::Control* control : Page().form().AllControls()) {
      if (control->Reachable()) reachable.push_back(control);
    }
    return reachable;
  }

  void Restore() {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    forms::Navigator& navigator = world_->program.navigator();
    const bool on_top = !navigator.ended() && navigator.top()->name() == GetParam().form;
    if (!on_top || State() != state_) Build();
  }

  // By the name of the widget, as all may be built anew in between.
  void Send(const QString& focus, int key, Qt::KeyboardModifier modifier) {
    Restore();
    GiveFocus(focus);
    counter_.deliveries = 0;
    const std::size_t helped = world_->help.shown.size();
    QTest::keyClick(Page().window()->windowHandle(), static_cast<Qt::Key>(key), modifier);
    SCOPED_TRACE("focus on " + focus.toStdString() + ", key " +
                 QKeySequence(static_cast<int>(modifier) | key).toString().toStdString());
    EXPECT_LE(counter_.deliveries, kMostDeliveries);
    EXPECT_THAT(testing::StackFaults(world_->window, world_->program.navigator()), IsEmpty());
    EXPECT_TRUE(key != Qt::Key_F1 || world_->help.shown.size() == helped + 1);
  }

  void GiveFocus(const QString& focus) {
    if (QWidget* now = Page().window()->focusWidget()) now->clearFocus();
    if (focus.isEmpty()) return;
    QWidget* widget = Page().findChild<QWidget*>(focus);
    (widget ? widget : world_->window.menuBar())->setFocus();
  }

  std::unique_ptr<KeyWorld> world_;
  std::vector<const forms::Control*> state_;
  KeyCounter counter_;
};

TEST_P(Keys, ComeToAnEndWhereverTheFocusIs) { SendAllKeys(); }

INSTANTIATE_TEST_SUITE_P(EveryScreen, Keys, ::testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

TEST(KeysTest, NoFormIsLeftOut) {
  // Splash1 leaves by itself; the others are screens that are tried, with another table.
  std::set<std::string> tried{"Splash1", "Vacation1", "FView", "ADDBKDISPLAY2"};
  for (const Way& way : kWays) tried.insert(way.form);
  EXPECT_THAT(KeyWorld("Startfrm").program.navigator().Names(),
              ::testing::UnorderedElementsAreArray(tried));
}

}  // namespace
}  // namespace tarnwell::desktop
