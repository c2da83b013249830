#pragma once

#include <QWidget>

#include "parts/main_buttons.h"

namespace tarnwell::desktop {

// A main screen: the row of main buttons over `content`.
QWidget* MainScreenView(parts::MainButtons& buttons, QWidget* content);

}  // namespace tarnwell::desktop
