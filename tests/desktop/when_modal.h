#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

namespace tarnwell::testing {

// Does `act` to the next modal window that comes; a further one inside `act` waits for another.
inline void WhenModal(std::function<void(QWidget*)> act, QWidget* behind = nullptr) {
  QTimer::singleShot(10, qApp, [act = std::move(act), behind] {
    QWidget* modal = QApplication::activeModalWidget();
    modal&& modal != behind ? act(modal) : WhenModal(act, behind);
  });
}

}  // namespace tarnwell::testing
