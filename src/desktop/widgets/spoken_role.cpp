#include "desktop/widgets/spoken_role.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>

namespace tarnwell::desktop {
namespace {

constexpr const char* kRole = "spokenRole";
constexpr const char* kIsPressed = "spokenPress";

class SpokenWidget : public QAccessibleWidget {
 public:
  explicit SpokenWidget(QWidget* widget)
      : QAccessibleWidget(widget, static_cast<QAccessible::Role>(widget->property(kRole).toInt())) {
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (IsPressed()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction() || !IsPressed()) return QAccessibleWidget::doAction(name);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    QCoreApplication::sendEvent(widget(), &press);
  }

 private:
  bool IsPressed() const {
    return widget()->isEnabled() && widget()->property(kIsPressed).toBool();
  }
};

QAccessibleInterface* MakeSpokenWidget(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  return widget && widget->property(kRole).isValid() ? new SpokenWidget(widget) : nullptr;
}

}  // namespace

void SetSpokenRole(QWidget* widget, QAccessible::Role role, bool pressed_by_key) {
  widget->setProperty(kRole, static_cast<int>(role));
  widget->setProperty(kIsPressed, pressed_by_key);
}

void InstallSpokenRoles() { QAccessible::installFactory(MakeSpokenWidget); }

}  // namespace tarnwell::desktop
