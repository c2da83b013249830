#include "desktop/services/modal_question.h"

#include <QApplication>

namespace tarnwell::desktop {

ModalQuestion::ModalQuestion()
    : asker_(QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                               : QApplication::activeWindow()) {
  // A dialogue under the wait shape of the pointer would look as if it couldn't be answered.
  QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ModalQuestion::~ModalQuestion() { QApplication::restoreOverrideCursor(); }

}  // namespace tarnwell::desktop
