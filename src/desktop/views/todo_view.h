#pragma once

#include <QWidget>

#include "desktop/widgets/pictures.h"
#include "workarea/todo_pane.h"

namespace tarnwell::desktop {

// The To Do list in the hub.
QWidget* ToDoView(workarea::ToDoPane& pane, PictureStore& pictures);

}  // namespace tarnwell::desktop
