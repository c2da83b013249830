#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace tarnwell::desktop {

class MainWindow;

// The keys that mean the same wherever they are pressed in the window, its dialogues and its menus:
// F1 brings the help page of what is on show, F10 goes to the menu bar, and Alt with a letter
// chooses the control that has it, which takes the focus. Letters that no control has are left to
// the menu bar.
class WindowKeys : public QObject {
 public:
  explicit WindowKeys(MainWindow& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // True for a key that is ours; `act` does what it means.
  bool Take(QWidget& widget, const QKeyEvent& key, bool act);
  bool TakeHelp(QWidget& widget, bool act);
  bool TakeMnemonic(const QKeyEvent& key, bool act);
  bool TakeMenuKey(bool act);

  MainWindow& window_;
};

}  // namespace tarnwell::desktop
