// What an edit replaces, kept so that it can be taken back.

#pragma once

#include <cstddef>
#include <vector>

#include "richtext/paragraphs.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// From `where` on stood `before` and stands `after`. In a table both are paragraphs of that cell.
struct Change {
  Place where;
  std::vector<Block> before;
  std::vector<Block> after;
};

// What a change means for a view: the numbers of blocks, or of a cell's paragraphs, and the
// paragraph that the first of them is or was.
struct ChangedSpan {
  Place where;
  int first_paragraph = 0;
  std::size_t blocks_before = 0;
  std::size_t blocks_after = 0;
  bool operator==(const ChangedSpan&) const = default;
};

ChangedSpan Apply(const Change& change, RichDocument& document);
ChangedSpan TakeBack(const Change& change, RichDocument& document);

// Bytes in memory, roughly.
std::size_t SizeOf(const Change& change);

}  // namespace tarnwell::richtext
