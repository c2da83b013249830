#include "richtext/merged_cells.h"

#include <cstddef>
#include <utility>

#include "richtext/kept_words.h"

namespace tarnwell::richtext {

std::vector<std::vector<CellSpan>> CellSpansOf(const std::vector<const TableRow*>& rows,
                                               const TableGrid& grid) {
  std::vector<std::vector<CellSpan>> spans(rows.size());
  for (std::size_t row = 0; row < rows.size(); ++row) spans[row].resize(rows[row]->cells.size());
  // The cell that goes on downwards, by its first column.
  std::vector<CellSpan*> above(grid.widths.size() + 1, nullptr);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    std::vector<CellSpan*> open(above.size(), nullptr);
    CellSpan* left = nullptr;
    std::size_t column = 0;
    for (std::size_t i = 0; i < spans[row].size(); ++i) {
      CellSpan& span = spans[row][i];
      const std::string& words = rows[row]->cells[i].other;
      span.columns = grid.spans[row][i];
      if (left != nullptr && HoldsKept("clmrg", words)) {
        span.is_covered = true;
        left->columns += span.columns;
      } else if (CellSpan* const top = above[column]; top && HoldsKept("clvmrg", words)) {
        span.is_covered = true;
        ++top->rows;
        open[column] = top;
        left = nullptr;
      } else {
        left = &span;
        if (HoldsKept("clvmgf", words)) open[column] = &span;
      }
      column += static_cast<std::size_t>(grid.spans[row][i]);
    }
    above = std::move(open);
  }
  return spans;
}

}  // namespace tarnwell::richtext
