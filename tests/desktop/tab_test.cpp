// The keyboard alone, on every screen: Tab comes to each control that can be used, in the order in
// which one reads, and back to where it began; nothing keeps the keys.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <map>
#include <set>

#include "desktop/key_world.h"
#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

using ::testing::IsEmpty;
using testing::kWays;
using testing::Way;

class Tabs : public ::testing::TestWithParam<Way> {
 protected:
  Tabs() : bare_(Usable()) {
    Take(GetParam(), form_);
    for (forms::Control* control : form_.AllControls()) {
      QWidget* widget = page_.findChild<QWidget*>(FromCore(control->name()));
      if (!widget) continue;
      controls_[widget] = control->name();
      if (control->Reachable() && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus)) {
        reachable_.insert(control->name());
        if (!first_) first_ = widget;
      }
    }
  }

  // What a person could use, which tells one panel from another.
  std::set<const forms::Control*> Usable() {
    std::set<const forms::Control*> usable;
    for (const forms::Control* control : form_.AllControls()) {
      if (control->Reachable()) usable.insert(control);
    }
    return usable;
  }

  // The control that has the keys, by its name; those of what stands in it count for it.
  std::pair<std::string, QWidget*> Focused() {
    for (QWidget* at = page_.window()->focusWidget(); at; at = at->parentWidget()) {
      if (const auto found = controls_.find(at); found != controls_.end()) {
        return {found->second, at};
      }
    }
    return {};
  }

  void Press(Qt::KeyboardModifiers modifiers) {
    QWidget* focus = page_.window()->focusWidget();
    // A text to write in takes the plain key.
    if (dynamic_cast<RichTextView*>(focus)) modifiers |= Qt::ControlModifier;
    QTest::keyClick(page_.window()->windowHandle(),
                    modifiers & Qt::ShiftModifier ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    QCoreApplication::processEvents();
  }

  QRect PlaceOf(QWidget& widget) { return {widget.mapTo(&page_, QPoint()), widget.size()}; }

  // Goes round once.
  std::vector<std::string> Walk(Qt::KeyboardModifiers modifiers) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i <= 2 * controls_.size(); ++i) {
      const auto [name, widget] = Focused();
      if (!names.empty() && name == names.front()) break;
      if (!name.empty() && (names.empty() || names.back() != name)) {
        names.push_back(name);
        places_[name] = PlaceOf(*widget);
      }
      Press(modifiers);
    }
    return names;
  }

  testing::KeyWorld world_{GetParam().form};
  forms::Form& form_ = world_.form();
  FormPage& page_ = *world_.window.PageOf(form_);
  std::set<const forms::Control*> bare_;  // on the screen before anything was opened on it
  std::map<QWidget*, std::string> controls_;
  std::set<std::string> reachable_;
  QWidget* first_ = nullptr;
  std::map<std::string, QRect> places_;
};

TEST_P(Tabs, ComeToEveryControlAndBack) {
  if (reachable_.empty()) return;
  first_->setFocus(Qt::TabFocusReason);
  const std::vector<std::string> forth = Walk({});
  std::set<std::string> missed = reachable_;
  for (const std::string& name : forth) missed.erase(name);
  EXPECT_THAT(missed, IsEmpty()) << ::testing::PrintToString(forth);
  EXPECT_EQ(Focused().first, forth.front());
  std::vector<std::string> back = Walk(Qt::ShiftModifier);
  std::reverse(back.begin() + 1, back.end());
  EXPECT_EQ(back, forth);

  std::vector<std::string> backwards;
  for (std::size_t i = 1; i < forth.size(); ++i) {
    const QRect from = places_[forth[i - 1]];
    const QRect to = places_[forth[i]];
    const bool above = to.bottom() <= from.top() && to.left() < from.right();
    const bool before =
        to.right() <= from.left() && to.top() < from.bottom() - 4 && from.top() < to.bottom() - 4;
    if (above || before) backwards.push_back(forth[i - 1] + " to " + forth[i]);
  }
  // Once round, from the end to the beginning.
  EXPECT_LE(backwards.size(), 1u) << ::testing::PrintToString(backwards);
}

TEST_P(Tabs, EscLeadsOutOfWhatWasOpened) {
  constexpr int kMostSteps = 5;
  const forms::Navigator& navigator = world_.program.navigator();
  // An area of a main screen is left by the main buttons.
  const auto is_out = [&] {
    if (navigator.ended() || navigator.top() != &form_) return true;
    const forms::Control* main_button = form_.Find("SSCommand4(0)");
    return Usable() == bare_ || (main_button && main_button->Reachable());
  };
  for (int i = 0; i < kMostSteps && !is_out(); ++i) {
    QTest::keyClick(page_.window()->windowHandle(), Qt::Key_Escape);
    QCoreApplication::processEvents();
  }
  EXPECT_TRUE(is_out());
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, Tabs, ::testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

}  // namespace
}  // namespace tarnwell::desktop
