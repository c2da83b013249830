#pragma once

#include <optional>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// What is drawn around and behind a paragraph.
struct ParagraphFrame {
  struct Side {
    Border border;
    int distance = 0;  // from the text, in twips
    bool operator==(const Side&) const = default;
  };
  Side top, left, bottom, right;
  Side between;  // above each paragraph that goes on with the frame of the one before
  std::optional<Color> fill;

  bool is_empty() const { return *this == ParagraphFrame{}; }
  bool operator==(const ParagraphFrame&) const = default;
};

// From the words that the paragraph keeps; `colors` are the document's.
ParagraphFrame FrameOf(const ParagraphFormat& format,
                       const std::vector<std::optional<Color>>& colors);

// A pattern of so many hundredths of a per cent of `ink` on `ground`; black on white where none is
// named.
Color Shaded(int shading, std::optional<Color> ink, std::optional<Color> ground);

}  // namespace tarnwell::richtext
