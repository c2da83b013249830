#include "desktop/widgets/table_parts.h"

#include <algorithm>

#include "richtext/paragraphs.h"

namespace tarnwell::desktop {

using richtext::TableGrid;

namespace {

bool IsLong(const TableRows& rows) {
  std::size_t cells = 0;
  for (const richtext::TableRow* const row : rows) {
    cells += row->cells.size();
    if (cells > kMostCellsInOne) return true;
  }
  return false;
}

int CountParagraphs(const richtext::TableRow& row) {
  std::size_t count = 0;
  for (const richtext::Cell& cell : row.cells) count += cell.paragraphs.size();
  return static_cast<int>(count);
}

// Calls visit(rows, block, paragraph) for all tables that nothing stands between, with the numbers
// of their first block and their first paragraph.
template <typename Visit>
void ForEachTable(const richtext::RichDocument& document, Visit visit) {
  int paragraph = 0;
  for (std::size_t block = 0; block < document.blocks.size();) {
    if (std::holds_alternative<richtext::Paragraph>(document.blocks[block])) {
      ++paragraph;
      ++block;
      continue;
    }
    const AdjacentTables tables = TablesAt(document, block);
    visit(tables.rows, block, paragraph);
    for (const richtext::TableRow* const row : tables.rows) paragraph += CountParagraphs(*row);
    block = tables.end;
  }
}

}  // namespace

CellSpans SpansOfPart(const TableRows& rows, const TableGrid& grid, std::size_t first,
                      std::size_t end) {
  TableRows part(rows.begin() + static_cast<std::ptrdiff_t>(first),
                 rows.begin() + static_cast<std::ptrdiff_t>(end));
  TableGrid of_part;
  of_part.widths = grid.widths;
  of_part.spans.assign(grid.spans.begin() + static_cast<std::ptrdiff_t>(first),
                       grid.spans.begin() + static_cast<std::ptrdiff_t>(end));
  return richtext::CellSpansOf(part, of_part);
}

AdjacentTables TablesAt(const richtext::RichDocument& document, std::size_t block) {
  AdjacentTables tables;
  for (; block < document.blocks.size(); ++block) {
    const auto* const table = std::get_if<richtext::Table>(&document.blocks[block]);
    if (table == nullptr) break;
    for (const richtext::TableRow& row : table->rows) {
      if (!row.cells.empty()) tables.rows.push_back(&row);
    }
  }
  tables.end = block;
  return tables;
}

std::size_t EndOfPart(const TableRows& rows, std::size_t first) {
  if (!IsLong(rows)) return rows.size();
  std::size_t cells = 0;
  while (first < rows.size() && cells < kCellsOfPart) cells += rows[first++]->cells.size();
  return first;
}

std::vector<int> FillersIn(const richtext::RichDocument& document) {
  std::vector<int> fillers;
  ForEachTable(document, [&fillers](const TableRows& rows, std::size_t block, int paragraph) {
    std::size_t next_part = block == 0 ? 0 : EndOfPart(rows, 0);
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (row == next_part) {
        fillers.push_back(paragraph);
        next_part = EndOfPart(rows, row);
      }
      paragraph += CountParagraphs(*rows[row]);
    }
  });
  return fillers;
}

bool HasMergedCells(std::span<const richtext::TableRow* const> rows) {
  return std::ranges::any_of(rows, [](const richtext::TableRow* row) {
    return std::ranges::any_of(row->cells, [](const richtext::Cell& cell) {
      return cell.other.find("mrg") != std::string::npos;
    });
  });
}

std::vector<int> CoveredIn(const richtext::RichDocument& document) {
  std::vector<int> covered;
  ForEachTable(document, [&covered](const TableRows& rows, std::size_t, int paragraph) {
    if (!HasMergedCells(rows)) return;
    const TableGrid grid = richtext::GridOf(rows);
    for (std::size_t first = 0; first < rows.size();) {
      const std::size_t end = EndOfPart(rows, first);
      const CellSpans spans = SpansOfPart(rows, grid, first, end);
      for (std::size_t row = first; row < end; ++row) {
        for (std::size_t i = 0; i < rows[row]->cells.size(); ++i) {
          const int behind = paragraph + static_cast<int>(rows[row]->cells[i].paragraphs.size());
          for (; paragraph < behind; ++paragraph) {
            if (spans[row - first][i].is_covered) covered.push_back(paragraph);
          }
        }
      }
      first = end;
    }
  });
  return covered;
}

richtext::Range WithWholeTables(const richtext::RichDocument& document, richtext::Range range) {
  const auto is_table = [&document](std::size_t block) {
    return block < document.blocks.size() &&
           std::holds_alternative<richtext::Table>(document.blocks[block]);
  };
  const auto has_parts = [&document](std::size_t block) {
    const TableRows rows = TablesAt(document, block).rows;
    return EndOfPart(rows, 0) < rows.size();
  };
  const auto first_of = [&](int paragraph) {
    std::size_t block = richtext::FindPlace(document, paragraph).block;
    while (is_table(block) && block > 0 && is_table(block - 1)) --block;
    return block;
  };
  const std::size_t first = first_of(range.from.paragraph);
  const std::size_t last = first_of(range.to.paragraph);
  if (has_parts(first)) range.from = {richtext::FirstParagraphOf(document, first), 0};
  if (has_parts(last)) {
    const std::size_t end = TablesAt(document, last).end;
    const int paragraph = richtext::FirstParagraphOf(document, end) - 1;
    range.to = {paragraph, richtext::ShownLength(richtext::ParagraphAt(document, paragraph))};
  }
  return range;
}

}  // namespace tarnwell::desktop
