// Pieces of documents, for the clipboard and for moving text.

#pragma once

#include <cstddef>
#include <vector>

#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// What the range selects, as a document; cells come as a table of their own. What isn't shown stays
// behind.
RichDocument Slice(const RichDocument& document, const Range& range);

// Drops what means something only in the document that the fragment comes from: styles, numbers of
// lists, words outside the model, what isn't shown. Fonts are named where they were the default.
void Detach(RichDocument& fragment);

// Parts the paragraphs that are longer than kLongestPasted; those of tables stay.
void PartLong(RichDocument& fragment);

// A row of a table as a paragraph, tabs between its cells.
std::vector<Block> WithoutTables(std::vector<Block> blocks);

// Joins what is left of `last` from `to` on to what is left of `first` up to `from`; what isn't
// shown between stays. The paragraph's format is that of the first, if anything is left of it.
Paragraph Joined(const Paragraph& first, int from, const Paragraph& last, int to);

}  // namespace tarnwell::richtext
