// Pieces of documents, for the clipboard and for moving text.

#pragma once

#include <cstddef>
#include <vector>

#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// What the range shows, as a document with the same tables. Of a table that it ends in come the
// rows that it touches, with the texts of cells outside it empty. What isn't shown stays behind.
RichDocument Slice(const RichDocument& document, const Range& range);

// Drops what means something only in the document that the fragment comes from: styles, numbers of
// lists, words outside the model, what isn't shown. Fonts are named where they were the default.
void Detach(RichDocument& fragment);

// A row of a table as a paragraph, tabs between its cells.
std::vector<Block> WithoutTables(std::vector<Block> blocks);

// Joins what is left of `last` from `to` on to what is left of `first` up to `from`; what isn't
// shown between stays. The paragraph's format is that of the first, if anything is left of it.
Paragraph Joined(const Paragraph& first, int from, const Paragraph& last, int to);

// Takes out what is shown from one place of a cell to another.
void EraseInCell(std::size_t first, int from, std::size_t last, int to,
                 std::vector<Paragraph>& paragraphs);
void ClearCell(std::vector<Paragraph>& paragraphs);

}  // namespace tarnwell::richtext
