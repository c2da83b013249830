#include "richtext/fragment.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "richtext/list_words.h"
#include "richtext/paragraphs.h"
#include "richtext/run_edit.h"
#include "richtext/runs.h"

namespace tarnwell::richtext {
namespace {

bool IsOpaque(const Run& run) { return std::holds_alternative<Opaque>(run.content); }

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

// Leaves of the table what stands at or before `last`, up to `to` in its paragraph.
void CutBehind(const Place& last, int to, Table& table) {
  table.rows.resize(last.row + 1);
  std::vector<Cell>& cells = table.rows.back().cells;
  for (std::size_t i = last.cell + 1; i < cells.size(); ++i) ClearCell(cells[i].paragraphs);
  std::vector<Paragraph>& paragraphs = cells[last.cell].paragraphs;
  paragraphs.resize(last.index + 1);
  paragraphs.back().runs = Split(paragraphs.back().runs, to).head;
}

void CutBefore(const Place& first, int from, Table& table) {
  std::vector<Cell>& cells = table.rows[first.row].cells;
  for (std::size_t i = 0; i < first.cell; ++i) ClearCell(cells[i].paragraphs);
  std::vector<Paragraph>& paragraphs = cells[first.cell].paragraphs;
  paragraphs.erase(paragraphs.begin(),
                   paragraphs.begin() + static_cast<std::ptrdiff_t>(first.index));
  paragraphs.front().runs = Split(paragraphs.front().runs, from).tail;
  table.rows.erase(table.rows.begin(), table.rows.begin() + static_cast<std::ptrdiff_t>(first.row));
}

void CutBehind(const Place& last, int to, Block& block) {
  if (auto* const table = std::get_if<Table>(&block)) return CutBehind(last, to, *table);
  auto& paragraph = std::get<Paragraph>(block);
  paragraph.runs = Split(paragraph.runs, to).head;
}

void CutBefore(const Place& first, int from, Block& block) {
  if (auto* const table = std::get_if<Table>(&block)) return CutBefore(first, from, *table);
  auto& paragraph = std::get<Paragraph>(block);
  paragraph.runs = Split(paragraph.runs, from).tail;
}

std::vector<Block> Cut(const RichDocument& document, const Range& range) {
  const Place first = FindPlace(document, range.from.paragraph);
  const Place last = FindPlace(document, range.to.paragraph);
  std::vector<Block> blocks;
  if (first.InSameCell(last)) {
    const std::vector<Paragraph>& paragraphs = CellAt(document, first).paragraphs;
    blocks.assign(paragraphs.begin() + static_cast<std::ptrdiff_t>(first.index),
                  paragraphs.begin() + static_cast<std::ptrdiff_t>(last.index) + 1);
    CutBehind({}, range.to.offset, blocks.back());
    CutBefore({}, range.from.offset, blocks.front());
    return blocks;
  }
  const std::size_t end = std::min(last.block + 1, document.blocks.size());
  for (std::size_t i = first.block; i < end; ++i) blocks.push_back(document.blocks[i]);
  if (blocks.empty()) return blocks;
  if (last.block < document.blocks.size()) CutBehind(last, range.to.offset, blocks.back());
  CutBefore(first, range.from.offset, blocks.front());
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

void Detach(Table& table) {
  for (TableRow& row : table.rows) {
    row.other.clear();
    for (Cell& cell : row.cells) {
      cell.other.clear();
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

void EraseInCell(std::size_t first, int from, std::size_t last, int to,
                 std::vector<Paragraph>& paragraphs) {
  if (first == last) return EraseShown(from, to, paragraphs[first].runs);
  paragraphs[first] = Joined(paragraphs[first], from, paragraphs[last], to);
  paragraphs.erase(paragraphs.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                   paragraphs.begin() + static_cast<std::ptrdiff_t>(last) + 1);
}

void ClearCell(std::vector<Paragraph>& paragraphs) {
  paragraphs.resize(1);
  EraseShown(0, ShownLength(paragraphs.front()), paragraphs.front().runs);
}

}  // namespace tarnwell::richtext
