#include "desktop/widgets/menus.h"

#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

void Bind(QAction* action, forms::MenuItem& item) {
  const auto show = [action, &item] {
    action->setVisible(item.visible());
    action->setEnabled(item.enabled());
    action->setCheckable(item.checkable());
    action->setChecked(item.checkable() && item.checked());
  };
  // The subscription rides on the connection and ends with the action.
  auto subscription = std::make_shared<forms::Subscription>(item.OnChanged(show));
  QObject::connect(action, &QAction::triggered, action, [action, show, subscription, &item] {
    if (!subscription->Connected()) return;
    if (EndEditUnderKeys()) item.Click();
    show();  // Qt has toggled the mark; the form decides on it
  });
  show();
}

void AddItem(QMenu* menu, forms::MenuItem& item) {
  if (item.separator()) {
    menu->addSeparator();
  } else if (item.submenu()) {
    menu->addMenu(MakeMenu(item, menu));
  } else {
    // The page takes the key, after the widget that has the focus; the menu only names it.
    const QString key = item.key().empty() ? QString() : QLatin1Char('\t') + FromCore(item.key());
    QAction* action = menu->addAction(FromCore(item.caption()) + key);
    action->setObjectName(FromCore(item.name()));
    Bind(action, item);
  }
}

void Fill(QMenu* menu, forms::MenuItem& item) {
  menu->setObjectName(FromCore(item.name()));
  menu->menuAction()->setObjectName(FromCore(item.name()));
  Bind(menu->menuAction(), item);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [&item] { item.Open(); });
  for (const auto& entry : item.items()) AddItem(menu, *entry);
}

}  // namespace

QMenu* MakeMenu(forms::MenuItem& item, QWidget* owner) {
  auto* menu = new QMenu(FromCore(item.caption()), owner);
  Fill(menu, item);
  return menu;
}

std::unique_ptr<QMenu> MakeMenu(forms::MenuItem& item) {
  return std::unique_ptr<QMenu>(MakeMenu(item, nullptr));
}

}  // namespace tarnwell::desktop
