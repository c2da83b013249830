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

void Fill(QMenu* menu, forms::MenuItem& item);

void AddItem(QMenu* menu, forms::MenuItem& item) {
  if (item.separator()) {
    menu->addSeparator();
  } else if (item.submenu()) {
    auto* submenu = new QMenu(FromCore(item.caption()), menu);
    Fill(submenu, item);
    menu->addMenu(submenu);
  } else {
    QAction* action = menu->addAction(FromCore(item.caption()));
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

std::unique_ptr<QMenu> MakeMenu(forms::MenuItem& item) {
  auto menu = std::make_unique<QMenu>(FromCore(item.caption()));
  Fill(menu.get(), item);
  return menu;
}

}  // namespace tarnwell::desktop
