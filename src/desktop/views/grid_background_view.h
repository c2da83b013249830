#pragma once

#include <QWidget>

#include "desktop/widgets/pictures.h"
#include "parts/grid_background_panel.h"

namespace tarnwell::desktop {

// The panel "Grid Background Selector".
QWidget* GridBackgroundView(parts::GridBackgroundPanel& selector, PictureStore& pictures);

}  // namespace tarnwell::desktop
