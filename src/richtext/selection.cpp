#include "richtext/selection.h"

#include <algorithm>
#include <numeric>

#include "richtext/table_grid.h"

namespace tarnwell::richtext {
namespace {

Range WholeCell(const Cell& cell, int first_paragraph) {
  const int last = first_paragraph + static_cast<int>(cell.paragraphs.size()) - 1;
  return {{first_paragraph, 0}, {last, ShownLength(cell.paragraphs.back())}};
}

std::vector<Range> Cells(const RichDocument& document, const Place& first, const Place& last) {
  const auto& table = std::get<Table>(document.blocks[first.block]);
  std::vector<Range> cells;
  int paragraph = FirstParagraphOf(document, first.block);
  std::size_t counted = 0;  // rows
  const auto count = [&paragraph](const Cell& cell) {
    paragraph += static_cast<int>(cell.paragraphs.size());
  };
  for (const RowPart& part : CellsBetween(table, first, last)) {
    for (; counted < part.row; ++counted) std::ranges::for_each(table.rows[counted].cells, count);
    const std::vector<Cell>& row = table.rows[part.row].cells;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i >= part.begin && i < part.end) cells.push_back(WholeCell(row[i], paragraph));
      count(row[i]);
    }
    ++counted;
  }
  return cells;
}

Position BeginOfTable(const RichDocument& document, std::size_t block) {
  return {FirstParagraphOf(document, block), 0};
}

Position EndOfTable(const RichDocument& document, std::size_t block) {
  const int last = FirstParagraphOf(document, block + 1) - 1;
  return {last, ShownLength(ParagraphAt(document, last))};
}

}  // namespace

bool Selected::Holds(Position position) const {
  return std::ranges::any_of(parts, [position](const Range& part) {
    return part.from <= position && position <= part.to;
  });
}

Selected SelectedBy(const RichDocument& document, const Range& range) {
  const Place first = FindPlace(document, range.from.paragraph);
  const Place last = FindPlace(document, range.to.paragraph);
  if (first.block == last.block) {
    if (!first.in_table || first.InSameCell(last)) return {Selected::Kind::kText, {range}};
    return {Selected::Kind::kCells, Cells(document, first, last)};
  }
  Selected selected{Selected::Kind::kTables, {range}};
  Range& part = selected.parts.front();
  const bool is_all = range.from == Position{} && range.to == EndOf(document);
  const bool ends_before_table = IsTable(document, first.block + 1) && !is_all &&
                                 range.from.offset == ShownLength(ParagraphAt(document, first));
  const bool begins_behind_table =
      IsTable(document, last.block - 1) && !is_all && range.to.offset == 0;
  if (first.in_table) {
    part.from = BeginOfTable(document, first.block);
  } else if (ends_before_table) {
    part.from = BeginOfTable(document, first.block + 1);
  }
  if (last.in_table) {
    part.to = EndOfTable(document, last.block);
  } else if (begins_behind_table) {
    part.to = EndOfTable(document, last.block - 1);
  }
  if (part == range && !first.in_table && !last.in_table) selected.kind = Selected::Kind::kText;
  return selected;
}

std::vector<RowPart> CellsBetween(const Table& table, const Place& first, const Place& last) {
  std::vector<const TableRow*> rows;
  for (const TableRow& row : table.rows) rows.push_back(&row);
  const std::vector<std::vector<int>> spans = GridOf(rows).spans;
  const auto column_of = [&spans](const Place& place) {
    const auto begin = spans[place.row].begin();
    return std::accumulate(begin, begin + static_cast<std::ptrdiff_t>(place.cell), 0);
  };
  const int left = std::min(column_of(first), column_of(last));
  const int right = std::max(column_of(first) + spans[first.row][first.cell],
                             column_of(last) + spans[last.row][last.cell]);
  std::vector<RowPart> parts;
  for (std::size_t row = first.row; row <= last.row; ++row) {
    RowPart part{row, 0, 0};
    int column = 0;
    for (const int span : spans[row]) {
      if (column < left) ++part.begin;
      if (column < right) ++part.end;
      column += span;
    }
    if (part.begin < part.end) parts.push_back(part);
  }
  return parts;
}

std::string SelectedText(const RichDocument& document, const Range& range) {
  std::string text;
  const Selected selected = SelectedBy(document, range);
  for (const Range& part : selected.parts) {
    if (&part != &selected.parts.front()) text += '\n';
    text += ShownText(document, part);
  }
  return text;
}

void ForEachFormat(const RichDocument& document, const Range& range,
                   const std::function<bool(const CharacterFormat&)>& visit) {
  const std::vector<Range> parts = SelectedBy(document, range).parts;
  auto part = parts.begin();
  int next = 0;
  bool goes_on = true;
  ForEachParagraph(document, [&](const Paragraph& paragraph) {
    const int number = next++;
    while (part != parts.end() && part->to.paragraph < number) ++part;
    if (!goes_on || part == parts.end() || number < part->from.paragraph) return;
    const bool is_first = number == part->from.paragraph;
    const bool is_last = number == part->to.paragraph;
    const int length = ShownLength(paragraph);
    if (length == 0 && (is_first || !is_last)) goes_on = visit(paragraph.mark);
    const int from = is_first ? part->from.offset : 0;
    const int to = is_last ? part->to.offset : length;
    int begin = 0;
    for (const Run& run : paragraph.runs) {
      const int end = begin + static_cast<int>(ShownText(run).size());
      if (std::max(begin, from) < std::min(end, to)) goes_on = goes_on && visit(run.format);
      begin = end;
    }
  });
}

}  // namespace tarnwell::richtext
