#pragma once

#include "print/rich_style.h"

namespace tarnwell::print {

// A row of a document's table at the engine's position. A row that doesn't fit in what is left of
// the column begins the next one, unless it is taller than a column: then it is parted between
// lines. A row that is wider than the column is narrowed.
void AddRichRow(PageEngine& engine, RichStyles& styles, const richtext::TableRow& row);

}  // namespace tarnwell::print
