#pragma once

#include <QWidget>

#include "planner/recurrence_panel.h"

namespace tarnwell::desktop {

QWidget* RecurrenceView(planner::RecurrencePanel& panel);

}  // namespace tarnwell::desktop
