#include <QProgressBar>
#include <QTimer>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/text.h"
#include "forms/form.h"
#include "forms/timer.h"

namespace tarnwell::desktop {
namespace {

void RunTimer(forms::Timer& control, QObject* owner) {
  auto* timer = new QTimer(owner);
  timer->setObjectName(FromCore(control.name()));
  // The subscription rides on the connection and ends with the timer.
  auto subscription = std::make_shared<forms::Subscription>();
  auto follow = [timer, &control] {
    if (control.enabled() && !timer->isActive()) timer->start(control.interval());
    if (!control.enabled()) timer->stop();
  };
  *subscription = control.OnChanged(follow);
  QObject::connect(timer, &QTimer::timeout, owner, [subscription, &control] {
    if (subscription->Connected()) control.Tick();
  });
  follow();
}

}  // namespace

QWidget* Widget(forms::ProgressBar& bar) {
  auto* widget = new QProgressBar;
  new Binding(widget, bar, [widget, &bar] {
    widget->setRange(0, bar.maximum());
    widget->setValue(bar.value());
  });
  return widget;
}

void RunTimers(forms::Form& form, QObject* owner) {
  for (forms::Control* control : form.AllControls()) {
    if (auto* timer = dynamic_cast<forms::Timer*>(control)) RunTimer(*timer, owner);
  }
}

}  // namespace tarnwell::desktop
