#pragma once

#include <QWidget>

#include "parts/picture_panel.h"

namespace tarnwell::desktop {

class PictureStore;

QWidget* PicturePanelView(parts::PicturePanel& panel, PictureStore& pictures);

}  // namespace tarnwell::desktop
