#pragma once

#include <optional>
#include <string>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// A PNG or JPEG file as a picture of its own size, at 96 pixels an inch, or smaller so that it is
// no wider and no higher than that, in twips. Empty for any other file, and for one beyond
// kMostPixels.
std::optional<Picture> PictureFromFile(std::string bytes, int most_width, int most_height);

inline constexpr int kTwipsPerPixel = 15;  // at 96 pixels an inch
inline constexpr long long kMostPixels = 50'000'000;

}  // namespace tarnwell::richtext
