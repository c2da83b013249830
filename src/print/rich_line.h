// One line of a formatted paragraph.

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "print/rich_style.h"

namespace tarnwell::print {

// What stands side by side on a line.
struct LinePiece {
  enum class Kind { kText, kTab, kPicture };
  Kind kind = Kind::kText;
  int style = 0;
  double width = 0;    // twips
  std::string text;    // UTF-8
  double stretch = 0;  // of each blank of the text
  richtext::TabStop::Leader leader = richtext::TabStop::Leader::kNone;
  std::shared_ptr<const std::string> picture;  // its file
  int height = 0;                              // of the picture
};

struct RichLine {
  enum class End { kWrapped, kLineBreak, kPageBreak, kParagraph };
  std::vector<LinePiece> pieces;
  double left = 0;  // where the first piece begins, from the left edge of the column
  int height = 0;
  int base = 0;           // of the letters, from the line's top
  std::vector<int> bars;  // from the left edge of the column
  End end = End::kParagraph;
};

// The line with its left edge and its top at (x, y) of the page in hand.
void PlaceLine(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y);

}  // namespace tarnwell::print
