#include "desktop/services/qt_event_loop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "desktop/services/nested_loop.h"

namespace tarnwell::desktop {
namespace {

// Short against a second, long against the machine's own time.
constexpr std::chrono::milliseconds kALittle{20};

}  // namespace

void QtEventLoop::Yield() {
  const NestedLoop nested;
  QCoreApplication::processEvents();
}

void QtEventLoop::WaitALittle() {
  const NestedLoop nested;
  QEventLoop loop;
  QTimer::singleShot(kALittle, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtEventLoop::RunUntil(const std::function<bool()>& done) {
  const NestedLoop nested;
  QEventLoop loop;
  while (!done()) loop.processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace tarnwell::desktop
