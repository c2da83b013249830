// The document images' files. docs/formats/images.md has the layout.

#pragma once

#include "record_book/book_layout.h"

namespace tarnwell::images {

inline constexpr std::size_t kLongestPath = 200;    // characters
inline constexpr std::string_view kNoImage = "**";  // in the place of a path

const record_book::BookLayout& ImageBook();

}  // namespace tarnwell::images
