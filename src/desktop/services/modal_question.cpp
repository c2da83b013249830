#include "desktop/services/modal_question.h"

#include <QApplication>

#include "desktop/main_window.h"

namespace tarnwell::desktop {

namespace {

// Never the help window: a question over it would leave the program open to clicks.
QWidget* Asker() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (dynamic_cast<MainWindow*>(window) && window->isVisible()) return window;
  }
  return nullptr;
}

}  // namespace

ModalQuestion::ModalQuestion() : asker_(Asker()) {
  // A dialogue under the wait shape of the pointer would look as if it couldn't be answered.
  QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ModalQuestion::~ModalQuestion() { QApplication::restoreOverrideCursor(); }

}  // namespace tarnwell::desktop
