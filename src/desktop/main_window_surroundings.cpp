// What happens around the window: the session ends, a monitor goes.

#include <QApplication>
#include <QScreen>
#include <QSessionManager>
#include <algorithm>

#include "desktop/main_window.h"
#include "desktop/services/nested_loop.h"
#include "desktop/widgets/grid_view.h"

namespace tarnwell::desktop {
namespace {

// So much of the title bar has to be seen that the window can be moved by it.
constexpr QSize kGrip{80, 20};  // pixels

}  // namespace

void MainWindow::FollowSurroundings() {
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) {
    if (EndEditUnderKeys() && !HasUnsaved()) return;
    const bool may_ask = manager.allowsInteraction();
    if (!EndSession(may_ask)) manager.cancel();
    if (may_ask) manager.release();
  });
  // Later than the news, when the window has been given to another screen.
  const auto come_back = [this] {
    QMetaObject::invokeMethod(
        this, [this] { ComeBackOnScreen(); }, Qt::QueuedConnection);
  };
  connect(qApp, &QGuiApplication::screenRemoved, this, come_back);
  connect(qApp, &QGuiApplication::primaryScreenChanged, this, come_back);
}

bool MainWindow::HasUnsaved() const {
  return std::ranges::any_of(pages_, [](FormPage* page) { return page->form().unsaved(); });
}

bool MainWindow::EndSession(bool may_ask) {
  if (!navigator_ || navigator_->ended()) return true;
  if (!EndEditUnderKeys()) return false;
  while (!navigator_->ended() && HasUnsaved()) {
    // Under an open box or a run nothing can be asked.
    if (!may_ask || NestedLoop::Any() || QApplication::activeModalWidget()) return false;
    forms::Form& top = *navigator_->top();
    if (!navigator_->Close(top, forms::UnloadCause::kCloseBox)) return false;
  }
  return true;
}

// A desktop that moves windows has done so already.
void MainWindow::ComeBackOnScreen() {
  if (!isVisible() || isMaximized()) return;
  const QRect frame = frameGeometry();
  const QRect grip(frame.topLeft(), QSize(frame.width(), kGrip.height()));
  const auto screens = QGuiApplication::screens();
  const bool is_seen = std::ranges::any_of(screens, [&](const QScreen* screen) {
    const QRect seen = screen->availableGeometry() & grip;
    return seen.width() >= kGrip.width() && seen.height() == kGrip.height();
  });
  if (is_seen) return;
  resize(QMainWindow::size().boundedTo(QMainWindow::screen()->availableSize() - Frame()));
  CenterOnScreen();
}

}  // namespace tarnwell::desktop
