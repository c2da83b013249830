#pragma once

#include <optional>
#include <string>

#include "forms/color.h"

namespace tarnwell::forms {

// What lies behind the cells of a grid.
struct GridLook {
  std::optional<Color> color;  // empty for the look's own
  std::string wallpaper;       // a supplied picture's file name, tiled; empty for none

  friend bool operator==(const GridLook&, const GridLook&) = default;
};

}  // namespace tarnwell::forms
