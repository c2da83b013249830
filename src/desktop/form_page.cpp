#include "desktop/form_page.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/menus.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {

FormPage::FormPage(forms::Form& form, QWidget* view) : form_(form) {
  const auto changed = [this] {
    ShowBackground();
    if (on_changed) on_changed();
  };
  form_subscription_ = form.OnChanged(changed);
  menu_subscription_ = form.menus().OnChanged(changed);
  setObjectName(FromCore(form.name()));
  setAccessibleName(FromCore(form.caption()));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(Scrolled(view));
  setAutoFillBackground(true);
  ShowBackground();
  for (const auto& item : form.menus().items()) menus_.push_back(MakeMenu(*item));
  RunTimers(form, this);
}

void FormPage::ShowBackground() {
  const QColor color = GroundOf(form_.background());
  if (palette().color(QPalette::Window) != color) setPalette(PaletteOn(color));
}

void FormPage::TakeFocus() {
  if (!form_.focus()) return setFocus();
  if (auto* widget = findChild<QWidget*>(FromCore(form_.focus()->name()))) {
    widget->setFocus(Qt::OtherFocusReason);
  }
}

bool FormPage::TakeKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Escape:
      return form_.PressEscape();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return form_.PressEnter();
    default:
      return TakeMenuKey(KeyName(event));
  }
}

bool FormPage::TakeMenuKey(const std::string& key) {
  if (!form_.menus().FindKey(key)) return false;
  if (EndEditUnderKeys()) form_.PressKey(key);
  return true;
}

void FormPage::keyPressEvent(QKeyEvent* event) {
  if (!TakeKey(*event)) QWidget::keyPressEvent(event);
}

void FormPage::contextMenuEvent(QContextMenuEvent* event) {
  if (!form_.popup_menu() || !form_.popup_menu()->AnyReachable()) return;
  if (!popup_menu_) popup_menu_ = MakeMenu(*form_.popup_menu());
  popup_menu_->popup(event->globalPos());
}

}  // namespace tarnwell::desktop
