// Document images on paper: one, two, four or eight to a page.

#pragma once

#include <span>
#include <string>
#include <vector>

#include "forms/pictures.h"
#include "print/page_engine.h"

namespace tarnwell::images {

// Places on a page as fractions of what lies between its margins, so that they hold upright and
// lying. Cells are filled row by row.
struct CellLayout {
  std::span<const double> lefts;
  std::span<const double> tops;
  double width;                          // at most: a picture keeps its proportions
  double height;                         // likewise
  std::span<const double> text_centers;  // of each column
  double font_size;                      // of title and date, points

  int cells() const { return static_cast<int>(lefts.size() * tops.size()); }
};

// For 1, 2, 4 or 8 to a page.
const CellLayout& LayoutOf(int images, bool landscape);

// How many dots a picture on paper has at most in each inch.
inline constexpr int kDotsPerInch = 300;

struct PrintedImage {
  forms::LoadedPicture picture;    // none leaves the cell to its texts
  std::vector<std::string> texts;  // below it, each a line
};

// As many pages as it takes. `image` is asked for each, counted from 0, with the room in dots.
void PrintImages(
    print::PageEngine& engine, int images_on_page, int count,
    const std::function<PrintedImage(int index, int most_width, int most_height)>& image);

}  // namespace tarnwell::images
