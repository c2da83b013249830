// The widths of a table's columns.

#pragma once

#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

inline constexpr int kNarrowestColumn = 240;  // twips

// Where the edges of cells that stand at `from` may be moved to, by all rows of the tables: the
// place nearest to `to` that leaves the cells on both sides their least width. `from` where there
// is no such edge, or no room. Twips from the page's left margin.
int NearestEdge(const std::vector<const Table*>& tables, int from, int to);

// The table with those edges moved from one place to the other. The cells to their right get
// narrower or wider; at the table's right end the table does.
Table WithEdgeMoved(const Table& table, int from, int to);

}  // namespace tarnwell::richtext
