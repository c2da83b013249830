#include "richtext/column_edges.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <variant>

#include "richtext/editor.h"
#include "richtext/paragraphs.h"
#include "richtext/table_grid.h"

namespace tarnwell::richtext {
namespace {

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
        // A column that is narrower already gets no wider by itself.
        least = std::max(least, std::min(left + kNarrowestColumn, from));
        if (i + 1 < row.cells.size()) {
          most = std::min(most, std::max(row.cells[i + 1].right_edge - kNarrowestColumn, from));
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

void Editor::MoveColumnEdge(int paragraph, int from, int to) {
  const Place place = FindPlace(document_, paragraph);
  if (!place.in_table) return;
  const auto is_table = [this](std::size_t block) {
    return block < document_.blocks.size() &&
           std::holds_alternative<Table>(document_.blocks[block]);
  };
  std::size_t first = place.block;
  while (first > 0 && is_table(first - 1)) --first;
  std::vector<const Table*> tables;
  for (std::size_t i = first; is_table(i); ++i) {
    tables.push_back(&std::get<Table>(document_.blocks[i]));
  }
  to = NearestEdge(tables, from, to);
  for (std::size_t i = first; is_table(i); ++i) {
    Replace({i}, 1, {WithEdgeMoved(std::get<Table>(document_.blocks[i]), from, to)});
  }
}

}  // namespace tarnwell::richtext
