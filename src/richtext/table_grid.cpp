#include "richtext/table_grid.h"

#include <algorithm>
#include <cstddef>

namespace tarnwell::richtext {
namespace {

using Rows = std::vector<const TableRow*>;

constexpr std::size_t kMostColumns = 64;
constexpr int kUsualWidth = 1440;

// The right edges of a row's cells, each further right than the one before.
std::vector<int> EdgesOf(const TableRow& row) {
  std::vector<int> edges;
  int last = row.left_edge;
  for (const Cell& cell : row.cells) {
    last = std::max(cell.right_edge, last + 1);
    edges.push_back(last);
  }
  return edges;
}

std::vector<int> UnionOf(const Rows& rows, int tolerance) {
  std::vector<int> all;
  for (const TableRow* const row : rows) {
    const std::vector<int> edges = EdgesOf(*row);
    all.insert(all.end(), edges.begin(), edges.end());
  }
  std::ranges::sort(all);
  std::vector<int> edges;
  for (const int edge : all) {
    if (edges.empty() || edge > edges.back() + tolerance) edges.push_back(edge);
  }
  return edges;
}

// Empty where two edges of a row fall together.
std::vector<int> SpansOf(const TableRow& row, const std::vector<int>& edges) {
  std::vector<int> spans;
  std::ptrdiff_t begin = 0;
  const std::vector<int> own = EdgesOf(row);
  for (std::size_t i = 0; i < own.size(); ++i) {
    auto end = std::ranges::upper_bound(edges, own[i]) - edges.begin();
    if (i + 1 == own.size()) end = std::ssize(edges);
    if (end <= begin) return {};
    spans.push_back(static_cast<int>(end - begin));
    begin = end;
  }
  return spans;
}

bool SetSpans(const Rows& rows, const std::vector<int>& edges, TableGrid& grid) {
  grid.spans.clear();
  for (const TableRow* const row : rows) {
    grid.spans.push_back(SpansOf(*row, edges));
    if (grid.spans.back().empty() && !row->cells.empty()) return false;
  }
  return true;
}

TableGrid EvenGrid(const Rows& rows) {
  TableGrid grid;
  std::size_t columns = 1;
  for (const TableRow* const row : rows) columns = std::max(columns, row->cells.size());
  grid.widths.assign(columns, kUsualWidth);
  for (const TableRow* const row : rows) {
    std::vector<int>& spans = grid.spans.emplace_back(row->cells.size(), 1);
    if (!spans.empty()) spans.back() += static_cast<int>(columns - row->cells.size());
  }
  return grid;
}

}  // namespace

TableGrid GridOf(const Rows& rows) {
  TableGrid grid;
  std::vector<int> edges = UnionOf(rows, kNearly);
  if (!SetSpans(rows, edges, grid)) {
    edges = UnionOf(rows, 0);
    SetSpans(rows, edges, grid);
  }
  if (edges.empty() || edges.size() > kMostColumns) return EvenGrid(rows);
  grid.left_edge = edges.front() - 1;
  for (const TableRow* const row : rows) {
    grid.left_edge = std::min(grid.left_edge, row->left_edge);
  }
  int left = grid.left_edge;
  for (const int edge : edges) {
    grid.widths.push_back(edge - left);
    left = edge;
  }
  return grid;
}

}  // namespace tarnwell::richtext
