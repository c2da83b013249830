#include "richtext/table_edit.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "richtext/editor.h"
#include "richtext/kept_words.h"
#include "richtext/merged_cells.h"
#include "richtext/table_shape.h"

namespace tarnwell::richtext {
namespace {

constexpr int kHalfGap = 108;      // as other word processors have it
constexpr int kBorderWidth = 10;   // twips
constexpr int kLeastColumn = 300;  // twips

Border ThinLine() {
  Border border;
  border.style = "brdrs";
  border.width = kBorderWidth;
  return border;
}

Table EmptyTable(int rows, int columns, int width, const Paragraph& like) {
  TableRow row;
  row.half_gap = kHalfGap;
  Paragraph empty;
  empty.mark = like.mark;
  for (int i = 1; i <= columns; ++i) {
    Cell cell;
    cell.right_edge = std::max(width, columns * kLeastColumn) * i / columns;
    cell.top = cell.left = cell.bottom = cell.right = ThinLine();
    cell.paragraphs = {empty};
    row.cells.push_back(std::move(cell));
  }
  return {std::vector<TableRow>(static_cast<std::size_t>(rows), row)};
}

// Where a person goes on writing behind a table; a section's end goes with it.
Paragraph EmptyBehind(Paragraph& paragraph) {
  Paragraph behind;
  behind.format = paragraph.format;
  behind.format.page_break_before = false;
  if (behind.format.list) LeaveList(behind.format);
  behind.mark = paragraph.mark;
  behind.section_break = std::exchange(paragraph.section_break, {});
  return behind;
}

int TextWidth(const RichDocument& document) {
  const Page& page = document.page;
  return page.width - page.left_margin - page.right_margin;
}

}  // namespace

std::optional<Range> NextCell(const RichDocument& document, Position position, bool forward) {
  Place place = FindPlace(document, position.paragraph);
  if (!place.in_table) return std::nullopt;
  const Table& table = std::get<Table>(document.blocks[place.block]);
  const TableShape shape(table);
  do {
    if (forward) {
      if (++place.cell == table.rows[place.row].cells.size()) {
        place.cell = 0;
        if (++place.row == table.rows.size()) return std::nullopt;
      }
    } else if (place.cell > 0) {
      --place.cell;
    } else {
      if (place.row == 0) return std::nullopt;
      place.cell = table.rows[--place.row].cells.size() - 1;
    }
  } while (shape.SpanOf(place.row, place.cell).is_covered);
  place.index = 0;
  const auto& paragraphs = CellAt(document, place).paragraphs;
  const int first = FirstParagraphOf(document, place);
  return Range{{first, 0},
               {first + static_cast<int>(paragraphs.size()) - 1, ShownLength(paragraphs.back())}};
}

Position Editor::InsertTable(Position at, int rows, int columns) {
  const Place place = FindPlace(document_, at.paragraph);
  if (place.in_table) return at;
  Paragraph paragraph = CopyAt(place);
  Table table =
      EmptyTable(std::clamp(rows, 1, kMostTableRows), std::clamp(columns, 1, kMostTableColumns),
                 TextWidth(document_), paragraph);
  const bool meets = place.block > 0 && IsTable(document_, place.block - 1);
  const bool is_instead = paragraph.runs.empty() && !meets;
  const Position cell{at.paragraph + (is_instead ? 0 : 1), 0};
  if (at.offset < ShownLength(paragraph)) {
    InsertBlocks(place, at, {std::move(table)});
    return cell;
  }
  Paragraph behind = EmptyBehind(paragraph);
  std::vector<Block> blocks{std::move(table), std::move(behind)};
  if (!is_instead) blocks.insert(blocks.begin(), std::move(paragraph));
  Replace(place, CountAt(place), std::move(blocks));
  return cell;
}

Position Editor::EditTable(const Range& range, TableEdit edit) {
  const Place from = FindPlace(document_, range.from.paragraph);
  if (!from.in_table) return range.from;
  Place to = FindPlace(document_, range.to.paragraph);
  Table table = std::get<Table>(document_.blocks[from.block]);
  if (to.block != from.block) {
    to = from;
    to.row = table.rows.size() - 1;
    to.cell = table.rows.back().cells.size() - 1;
  }
  TableCell cursor{from.row, from.cell};
  if (edit == TableEdit::kDeleteTable) {
    table.rows.clear();
  } else {
    cursor = Reshape(table, {{from.row, from.cell}, {to.row, to.cell}}, edit, TextWidth(document_));
  }
  const Place block{from.block};
  if (table.rows.empty()) {
    const bool meet =
        from.block > 0 && IsTable(document_, from.block - 1) && IsTable(document_, from.block + 1);
    Replace(block, 1, meet ? std::vector<Block>{Paragraph()} : std::vector<Block>{});
    return {FirstParagraphOf(document_, from.block), 0};
  }
  const TableRow& row = table.rows[std::min(cursor.row, table.rows.size() - 1)];
  const Place place{from.block, true, std::min(cursor.row, table.rows.size() - 1),
                    std::min(cursor.cell, row.cells.size() - 1), 0};
  Replace(block, 1, {std::move(table)});
  return {FirstParagraphOf(document_, place), 0};
}

}  // namespace tarnwell::richtext
