#pragma once

#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::print {

struct PictureSize {
  int width = 0;
  int height = 0;
};

// How large a PNG or JPEG file says it is, in pixels; 0 by 0 if it doesn't.
PictureSize PixelsOf(std::string_view file);

// As large as fits into the box, in its own proportions; 0 by 0 for no picture.
PictureSize FittedInto(PictureSize box, PictureSize picture);

// How large the picture stands on a page, in twips: as its document says, otherwise by its pixels,
// 96 an inch. A picture that is too large keeps its proportions; what is no picture stands small.
PictureSize SizeOnPage(const richtext::Picture& picture, int most_width, int most_height);

}  // namespace tarnwell::print
