// For the programs whose start is measured: tells the measuring program of the first painted window
// and ends the process there.

#pragma once

#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace tarnwell::bench {

class FirstPaint : public QObject {
 public:
  FirstPaint() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    // Any widget's: what covers its window whole is painted in the window's stead.
    if (event->type() == QEvent::Paint && qobject_cast<QWidget*>(object) && !painted_) {
      painted_ = true;
      // Behind the paint event, when the window's content is on its way to the screen.
      QTimer::singleShot(0, [] { Tell(); });
    }
    return false;
  }

 private:
  [[noreturn]] static void Tell() {
    const bool told = ::write(STDOUT_FILENO, "p", 1) == 1;
    ::_exit(told ? 0 : 1);
  }

  bool painted_ = false;
};

}  // namespace tarnwell::bench
