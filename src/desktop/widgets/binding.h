// What ties a widget to its control, whichever of the two goes first.

#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

#include "forms/control.h"

namespace tarnwell::desktop {

// Lives as a child of the widget. It shows the control's common state on the widget (visible,
// enabled, tool tip, focus), calls `show` for the rest, and forwards gestures as long as the
// control is there.
class Binding : public QObject {
 public:
  Binding(QWidget* widget, forms::Control& control, std::function<void()> show);

  // The program is showing a control's state at present. Where that hides or disables the widget
  // that had the focus, Qt moves it on to another one, into which no person went.
  static bool Showing() { return showing_ > 0; }

  // What the widget's signals do: runs `gesture` unless the control has gone, then shows what came
  // of it.
  template <typename Gesture>
  auto Forward(Gesture gesture) {
    return [this, gesture = std::move(gesture)](auto&&... arguments) {
      if (!subscription_.Connected()) return;
      gesture(std::forward<decltype(arguments)>(arguments)...);
      Show();
    };
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show();
  void DropLostFocus();
  // True when what the control before did on being left has taken the focus away again.
  bool TakeFocus(Qt::FocusReason reason);

  static inline int showing_ = 0;  // there is one thread

  QWidget* widget_;
  forms::Control& control_;
  std::function<void()> show_;
  forms::Subscription subscription_;
  bool had_focus_ = false;
  bool drops_press_ = false;  // the press that gave the focus isn't the widget's any more
};

// The accessible name: `caption` without its mnemonic, or where there is none the spoken name.
void NameForScreenReader(QWidget* widget, const forms::Control& control,
                         std::string_view caption = {});

}  // namespace tarnwell::desktop
