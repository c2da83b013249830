#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/menus.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// Enter presses the button that has the focus, outside dialogs too.
class Button : public QPushButton {
 public:
  Button() { setAutoDefault(false); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QPushButton::keyPressEvent(event);
  }
};

}  // namespace

QWidget* Widget(forms::Command& command) {
  auto* button = new Button;
  auto* binding = new Binding(button, command, [button, &command] {
    button->setText(FromCore(command.caption()));
    NameForScreenReader(button, command, command.caption());
    SetMark(button, "selected", command.selected());
    if (button->isCheckable()) button->setChecked(command.selected());
    button->setCursor(command.no_drop() ? Qt::ForbiddenCursor : Qt::ArrowCursor);
  });
  QObject::connect(button, &QPushButton::clicked, binding,
                   binding->Forward([&command](bool) { command.Click(); }));
  return button;
}

QWidget* Primary(QWidget* button) {
  SetMark(button, "primary", true);
  return button;
}

QWidget* Listed(QWidget* button) {
  SetMark(button, "listed", true);
  button->setFont(ScaledFont(TextSize::kNote));
  return button;
}

QWidget* WithIcon(const char* icon, QWidget* button) {
  if (auto* push_button = qobject_cast<QAbstractButton*>(button)) {
    push_button->setIcon(IconOf(QLatin1String(icon)));
  }
  return button;
}

QWidget* IconOnly(const char* icon, QWidget* button) {
  SetMark(button, "compact", true);
  return WithIcon(icon, button);
}

QWidget* WithMenu(QWidget* button, forms::MenuItem& menu) {
  QMenu* const shown = MakeMenu(menu, button);
  QObject::connect(qobject_cast<QPushButton*>(button), &QPushButton::clicked, shown,
                   [=] { shown->popup(button->mapToGlobal(button->rect().bottomLeft())); });
  return button;
}

QWidget* Toggle(const char* icon, QWidget* button) {
  auto* push_button = qobject_cast<QPushButton*>(button);
  push_button->setCheckable(true);
  push_button->setChecked(button->property("selected").toBool());
  return IconOnly(icon, button);
}

QWidget* Low(QWidget* widget) {
  SetMark(widget, "tool", true);
  return widget;
}

}  // namespace tarnwell::desktop
