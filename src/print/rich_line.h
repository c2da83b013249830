// One line of a formatted paragraph.

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "print/rich_style.h"
#include "richtext/paragraph_frame.h"

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

// The frame of a paragraph, between two edges, which are twips from the left edge of the column.
struct RichFrame {
  richtext::ParagraphFrame sides;
  int left = 0;
  int right = 0;
};

struct RichLine {
  enum class End { kWrapped, kLineBreak, kPageBreak, kParagraph };
  std::vector<LinePiece> pieces;
  double left = 0;  // where the first piece begins, from the left edge of the column
  int height = 0;
  int base = 0;           // of the letters, from the line's top
  std::vector<int> bars;  // from the left edge of the column
  End end = End::kParagraph;
  std::shared_ptr<const RichFrame> frame;  // null: there is none
  bool begins_frame = false;
  bool ends_frame = false;
  bool goes_on_with_frame = false;  // of the paragraph before
  int frame_above = 0;              // twips above the line that its frame fills too
};

// Nothing for a border that isn't there.
void PlaceBorder(PageEngine& engine, const richtext::Border& border, forms::PlacedLine line);

// The line with its left edge and its top at (x, y) of the page in hand.
void PlaceLine(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y);

}  // namespace tarnwell::print
