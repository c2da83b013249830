// Places in a document's shown text.

#pragma once

#include <compare>

namespace tarnwell::richtext {

// `paragraph` counts all paragraphs in reading order from 0, those in the cells of tables too.
// `offset` is a number of bytes of the paragraph's shown text; see paragraphs.h.
struct Position {
  int paragraph = 0;
  int offset = 0;
  auto operator<=>(const Position&) const = default;
};

struct Range {
  Position from;
  Position to;  // not before `from`
  bool empty() const { return from == to; }
  bool operator==(const Range&) const = default;
};

}  // namespace tarnwell::richtext
