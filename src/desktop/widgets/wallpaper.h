// A supplied picture tiled behind what lies on it.

#pragma once

#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "desktop/widgets/pictures.h"
#include "forms/form.h"

namespace tarnwell::desktop {

struct Wallpaper {
  QPixmap picture;
  QPalette palette;  // for texts on it
};

// None for an empty name, or a picture that can't be read.
std::optional<Wallpaper> ReadWallpaper(const PictureStore& pictures, const std::string& file);

// The content of a form in front of the wallpaper that `file` names; it may change with the form.
QWidget* OnWallpaper(forms::Form& form, std::function<std::string()> file, PictureStore& pictures,
                     QWidget* content);

}  // namespace tarnwell::desktop
