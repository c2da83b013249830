#include "richtext/column_edges.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace tarnwell::richtext {
namespace {

constexpr int kNearly = 60;  // twips; see GridOf

bool StandsAt(const Cell& cell, int edge) { return std::abs(cell.right_edge - edge) <= kNearly; }

}  // namespace

int NearestEdge(const std::vector<const Table*>& tables, int from, int to) {
  int least = std::numeric_limits<int>::min();
  int most = kLongestLength;
  bool has_edge = false;
  for (const Table* const table : tables) {
    for (const TableRow& row : table->rows) {
      for (std::size_t i = 0; i < row.cells.size(); ++i) {
        if (!StandsAt(row.cells[i], from)) continue;
        has_edge = true;
        const int left = i == 0 ? row.left_edge : row.cells[i - 1].right_edge;
        least = std::max(least, left + kNarrowestColumn);
        if (i + 1 < row.cells.size()) {
          most = std::min(most, row.cells[i + 1].right_edge - kNarrowestColumn);
        }
      }
    }
  }
  return has_edge && least <= most ? std::clamp(to, least, most) : from;
}

Table WithEdgeMoved(const Table& table, int from, int to) {
  Table moved = table;
  for (TableRow& row : moved.rows) {
    for (Cell& cell : row.cells) {
      if (StandsAt(cell, from)) cell.right_edge = to;
    }
  }
  return moved;
}

}  // namespace tarnwell::richtext
