// Document images on paper: one, two, four or eight to a page.

#pragma once

#include <span>
#include <string>
#include <vector>

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

struct PrintedImage {
  std::string path;                // empty for none, which leaves the cell to its texts
  std::vector<std::string> texts;  // below it, each a line
};

// As many pages as it takes.
void PrintImages(print::PageEngine& engine, int images_on_page,
                 std::span<const PrintedImage> images);

}  // namespace tarnwell::images
