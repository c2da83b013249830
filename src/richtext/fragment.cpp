#include "richtext/fragment.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "richtext/kept_words.h"
#include "richtext/limits.h"
#include "richtext/list_words.h"
#include "richtext/paragraphs.h"
#include "richtext/run_edit.h"
#include "richtext/runs.h"
#include "richtext/selection.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

template <typename Visit>
void ForEachParagraphOf(std::vector<Block>& blocks, Visit visit) {
  for (Block& block : blocks) {
    if (auto* const paragraph = std::get_if<Paragraph>(&block)) {
      visit(*paragraph);
      continue;
    }
    for (TableRow& row : std::get<Table>(block).rows) {
      for (Cell& cell : row.cells) std::ranges::for_each(cell.paragraphs, visit);
    }
  }
}

// A part of a table by itself, where the table's first column was.
Table CellsOf(const Table& table, const Place& first, const Place& last) {
  Table part;
  const std::vector<RowPart> rows = CellsBetween(table, first, last);
  const auto left_of = [&table](const RowPart& row) {
    const TableRow& whole = table.rows[row.row];
    return row.begin == 0 ? whole.left_edge : whole.cells[row.begin - 1].right_edge;
  };
  for (const RowPart& row : rows) {
    TableRow& copy = part.rows.emplace_back(table.rows[row.row]);
    const int shift = left_of(rows.front()) - table.rows[rows.front().row].left_edge;
    copy.left_edge = left_of(row) - shift;
    copy.cells.erase(copy.cells.begin() + static_cast<std::ptrdiff_t>(row.end), copy.cells.end());
    copy.cells.erase(copy.cells.begin(),
                     copy.cells.begin() + static_cast<std::ptrdiff_t>(row.begin));
    for (Cell& cell : copy.cells) cell.right_edge -= shift;
  }
  return part;
}

void CutBehind(int to, Paragraph& paragraph) { paragraph.runs = Split(paragraph.runs, to).head; }

void CutBefore(int from, Paragraph& paragraph) {
  paragraph.runs = Split(paragraph.runs, from).tail;
}

std::vector<Block> Cut(const RichDocument& document, const Range& range) {
  const Selected selected = SelectedBy(document, range);
  const Range& part = selected.parts.front();
  const Place first = FindPlace(document, part.from.paragraph);
  const Place last = FindPlace(document, selected.parts.back().to.paragraph);
  if (selected.kind == Selected::Kind::kCells) {
    const auto& table = std::get<Table>(document.blocks[first.block]);
    return {CellsOf(table, FindPlace(document, range.from.paragraph),
                    FindPlace(document, range.to.paragraph))};
  }
  std::vector<Block> blocks;
  if (selected.kind == Selected::Kind::kText && first.in_table) {
    const std::vector<Paragraph>& paragraphs = CellAt(document, first).paragraphs;
    blocks.assign(paragraphs.begin() + static_cast<std::ptrdiff_t>(first.index),
                  paragraphs.begin() + static_cast<std::ptrdiff_t>(last.index) + 1);
  } else {
    const std::size_t end = std::min(last.block + 1, document.blocks.size());
    for (std::size_t i = first.block; i < end; ++i) blocks.push_back(document.blocks[i]);
  }
  if (blocks.empty()) return blocks;
  auto* const tail = std::get_if<Paragraph>(&blocks.back());
  if (tail != nullptr && last.block < document.blocks.size()) CutBehind(part.to.offset, *tail);
  if (auto* const head = std::get_if<Paragraph>(&blocks.front()))
    CutBefore(part.from.offset, *head);
  return blocks;
}

void Detach(ParagraphFormat& format) {
  format.style = 0;
  format.other.clear();
  if (!format.list) return;
  format.list->list_number = 0;
  format.list->description = PlainListDescription(format.list->numbered);
}

void Detach(CharacterFormat& format, const std::string& default_font) {
  if (format.font.empty()) format.font = default_font;
  format.other.clear();
}

// How the cell lies in its table.
void Detach(Cell& cell) {
  const std::string other = std::exchange(cell.other, {});
  for (const std::string_view word :
       {"clmgf", "clmrg", "clvmgf", "clvmrg", "clvertalt", "clvertalc", "clvertalb"}) {
    if (HoldsKept(word, other)) KeepWord("\\" + std::string(word), cell.other);
  }
}

void Detach(Table& table) {
  for (TableRow& row : table.rows) {
    row.other.clear();
    for (Cell& cell : row.cells) {
      Detach(cell);
      for (Border* const border : {&cell.top, &cell.left, &cell.bottom, &cell.right}) {
        border->other.clear();
      }
    }
  }
}

}  // namespace

RichDocument Slice(const RichDocument& document, const Range& range) {
  RichDocument slice;
  slice.code_page = document.code_page;
  slice.default_font = document.default_font;
  slice.fonts = document.fonts;
  slice.colors = document.colors;
  slice.page = document.page;
  slice.base_page = document.base_page;
  slice.fields = document.fields;
  slice.blocks = Cut(document, range);
  ForEachParagraphOf(slice.blocks, [](Paragraph& paragraph) {
    paragraph.section_break.clear();
    std::vector<Run> runs = std::exchange(paragraph.runs, {});
    std::erase_if(runs, IsOpaque);
    AppendRuns(std::move(runs), paragraph.runs);
  });
  SettleFields(slice);
  return slice;
}

void Detach(RichDocument& fragment) {
  const std::string default_font = DefaultFontName(fragment);
  fragment.prologue.clear();
  fragment.epilogue.clear();
  ForEachParagraphOf(fragment.blocks, [&default_font](Paragraph& paragraph) {
    Detach(paragraph.format);
    Detach(paragraph.mark, default_font);
    paragraph.section_break.clear();
    std::vector<Run> runs = std::exchange(paragraph.runs, {});
    std::erase_if(runs, IsOpaque);
    for (Run& run : runs) {
      Detach(run.format, default_font);
      if (auto* const picture = std::get_if<Picture>(&run.content)) {
        picture->in_shape_group = false;
        picture->other.clear();
      }
    }
    AppendRuns(std::move(runs), paragraph.runs);
  });
  for (Block& block : fragment.blocks) {
    if (auto* const table = std::get_if<Table>(&block)) Detach(*table);
  }
  SettleFields(fragment);
}

void PartLong(RichDocument& fragment) {
  std::vector<Block> blocks;
  for (Block& block : fragment.blocks) {
    auto* const paragraph = std::get_if<Paragraph>(&block);
    while (paragraph != nullptr && ShownLength(*paragraph) > static_cast<int>(kLongestPasted)) {
      const std::size_t end = text::CharacterStart(ShownText(*paragraph), kLongestPasted);
      SplitRuns parts = Split(paragraph->runs, static_cast<int>(end));
      paragraph->runs = std::move(parts.head);
      blocks.emplace_back(*paragraph);
      paragraph->runs = std::move(parts.tail);
      paragraph->format.page_break_before = false;
    }
    blocks.push_back(std::move(block));
  }
  fragment.blocks = std::move(blocks);
}

std::vector<Block> WithoutTables(std::vector<Block> blocks) {
  std::vector<Block> plain;
  for (Block& block : blocks) {
    auto* const table = std::get_if<Table>(&block);
    if (table == nullptr) {
      plain.push_back(std::move(block));
      continue;
    }
    for (TableRow& row : table->rows) {
      Paragraph line;
      for (Cell& cell : row.cells) {
        for (Paragraph& paragraph : cell.paragraphs) {
          const bool is_first =
              &cell == &row.cells.front() && &paragraph == &cell.paragraphs.front();
          if (is_first) line.mark = paragraph.mark;
          if (!is_first) AppendRuns({{paragraph.mark, std::string("\t"), kNoField}}, line.runs);
          AppendRuns(std::move(paragraph.runs), line.runs);
        }
      }
      plain.emplace_back(std::move(line));
    }
  }
  return plain;
}

Paragraph Joined(const Paragraph& first, int from, const Paragraph& last, int to) {
  std::vector<Run> runs = first.runs;
  EraseShown(from, ShownLength(first), runs);
  std::vector<Run> rest = last.runs;
  EraseShown(0, to, rest);
  Paragraph joined;
  const Paragraph& model = from > 0 ? first : last;
  joined.format = model.format;
  joined.mark = model.mark;
  joined.section_break = last.section_break.empty() ? first.section_break : last.section_break;
  joined.runs = std::move(runs);
  AppendRuns(std::move(rest), joined.runs);
  return joined;
}

}  // namespace tarnwell::richtext
