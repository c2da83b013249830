#include "desktop/services/system_clock.h"

#include <QDateTime>

namespace tarnwell::desktop {

text::Moment SystemClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {text::MakeDate(now.date().year(), static_cast<unsigned>(now.date().month()),
                         static_cast<unsigned>(now.date().day())),
          std::chrono::seconds(now.time().msecsSinceStartOfDay() / 1000)};
}

}  // namespace tarnwell::desktop
