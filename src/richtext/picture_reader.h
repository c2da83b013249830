#pragma once

#include <optional>
#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The picture of a \pict group, from its source without the outer braces. Nothing if it is neither
// a PNG nor a JPEG or holds no bytes.
std::optional<Picture> ReadPicture(std::string_view body);

}  // namespace tarnwell::richtext
