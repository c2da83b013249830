#pragma once

#include <cstdint>

#include "forms/color.h"
#include "richtext/rich_document.h"

namespace tarnwell::forms {

inline Color FromRich(const richtext::Color& color) {
  return color.red | color.green << 8 | color.blue << 16;
}

inline richtext::Color ToRich(Color color) {
  const auto part = [color](int shift) { return static_cast<std::uint8_t>(color >> shift & 0xFF); };
  return {part(0), part(8), part(16)};
}

}  // namespace tarnwell::forms
