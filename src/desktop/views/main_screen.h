#pragma once

#include <QWidget>

#include "forms/main_buttons.h"

namespace tarnwell::desktop {

// A main screen: the row of main buttons over `content`.
QWidget* MainScreenView(forms::MainButtons& buttons, QWidget* content);

}  // namespace tarnwell::desktop
