#pragma once

#include <QMenu>
#include <memory>

#include "forms/menu.h"

namespace tarnwell::desktop {

// A menu with all its entries and submenus, kept in step with `item`. Needs `item` to stay.
std::unique_ptr<QMenu> MakeMenu(forms::MenuItem& item);
// Likewise, as a child of `owner`.
QMenu* MakeMenu(forms::MenuItem& item, QWidget* owner);

}  // namespace tarnwell::desktop
