#include "desktop/widgets/binding.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <utility>

#include "desktop/widgets/text.h"
#include "forms/spoken.h"

namespace tarnwell::desktop {

Binding::Binding(QWidget* widget, forms::Control& control, std::function<void()> show)
    : QObject(widget),
      widget_(widget),
      control_(control),
      show_(std::move(show)),
      subscription_(control.OnChanged([this] { Show(); })) {
  widget->setObjectName(FromCore(control.name()));
  widget->installEventFilter(this);
  NameForScreenReader(widget, control);
  Show();
}

void Binding::Show() {
  if (!subscription_.Connected()) return;
  ++showing_;
  widget_->setEnabled(control_.enabled());
  // A widget without a parent would open a window of its own; its place in a layout shows it.
  if (widget_->parentWidget() || !control_.visible()) widget_->setVisible(control_.visible());
  DropLostFocus();
  widget_->setToolTip(FromCore(control_.tool_tip()));
  widget_->setAccessibleDescription(FromCore(forms::DescriptionOf(control_)));
  if (show_) show_();
  // Only when the control has just got the focus: a change of its text must not fetch the focus
  // back from an open menu.
  const bool has_focus = control_.focused();
  if (has_focus && !had_focus_ && !widget_->hasFocus()) widget_->setFocus(Qt::OtherFocusReason);
  had_focus_ = has_focus;
  --showing_;
}

// Where nothing else on show can take the focus Qt leaves it in what has just been hidden.
void Binding::DropLostFocus() {
  QWidget* focus = widget_->window()->focusWidget();
  if (!focus || (focus->isVisibleTo(widget_->window()) && focus->isEnabled())) return;
  if (focus == widget_ || widget_->isAncestorOf(focus)) focus->clearFocus();
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_ || !subscription_.Connected()) return false;
  switch (event->type()) {
    case QEvent::FocusIn:
      return TakeFocus(static_cast<QFocusEvent*>(event)->reason());
    case QEvent::MouseButtonPress:
      return std::exchange(drops_press_, false);
    default:
      return false;
  }
}

bool Binding::TakeFocus(Qt::FocusReason reason) {
  const bool has_focus = widget_->hasFocus();
  const auto pressed = QGuiApplication::mouseButtons();
  drops_press_ = false;
  control_.Focus();
  const bool has_lost_it = has_focus && !widget_->hasFocus();
  // Where a box came meanwhile, the button went up over the box, and nobody would lift it in here.
  const bool was_let_go = pressed != QGuiApplication::mouseButtons();
  drops_press_ = reason == Qt::MouseFocusReason && (has_lost_it || was_let_go);
  return has_lost_it;
}

void NameForScreenReader(QWidget* widget, const forms::Control& control, std::string_view caption) {
  const QString spoken = Spoken(caption);
  widget->setAccessibleName(spoken.isEmpty() ? FromCore(control.spoken_name()).trimmed() : spoken);
}

}  // namespace tarnwell::desktop
