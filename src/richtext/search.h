// Looking for words in a document. A place lies within one paragraph.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

struct Search {
  std::string utf8;  // empty finds nothing
  bool whole_words = false;
  bool match_capitals = false;
};

// The first place that begins at or behind `from`.
std::optional<Range> FindNext(const RichDocument& document, const Search& search, Position from);
// The last place that ends at or before `before`.
std::optional<Range> FindPrevious(const RichDocument& document, const Search& search,
                                  Position before);
// All places, none over another.
std::vector<Range> FindAll(const RichDocument& document, const Search& search);

}  // namespace tarnwell::richtext
