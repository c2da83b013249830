#include "richtext/paragraphs.h"

#include <algorithm>
#include <utility>

namespace tarnwell::richtext {
namespace {

bool EndsUnwritten(const RichDocument& document) {
  return document.blocks.empty() || std::holds_alternative<Table>(document.blocks.back());
}

// The place of a table's n-th paragraph.
Place PlaceInTable(const Table& table, std::size_t block, int n) {
  Place place{block, true, 0, 0, 0};
  for (const TableRow& row : table.rows) {
    place.cell = 0;
    for (const Cell& cell : row.cells) {
      const int count = static_cast<int>(cell.paragraphs.size());
      if (n < count) {
        place.index = static_cast<std::size_t>(n);
        return place;
      }
      n -= count;
      ++place.cell;
    }
    ++place.row;
  }
  return place;
}

std::size_t Index(int number) { return static_cast<std::size_t>(number); }

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

}  // namespace

bool IsTable(const RichDocument& document, std::size_t block) {
  return block < document.blocks.size() && std::holds_alternative<Table>(document.blocks[block]);
}

int CountParagraphs(const Block& block) {
  const auto* const table = std::get_if<Table>(&block);
  if (table == nullptr) return 1;
  std::size_t count = 0;
  for (const TableRow& row : table->rows) {
    for (const Cell& cell : row.cells) count += cell.paragraphs.size();
  }
  return static_cast<int>(count);
}

int CountParagraphs(const RichDocument& document) {
  return FirstParagraphOf(document, document.blocks.size()) + (EndsUnwritten(document) ? 1 : 0);
}

Place FindPlace(const RichDocument& document, int paragraph) {
  for (std::size_t block = 0; block < document.blocks.size(); ++block) {
    const int count = CountParagraphs(document.blocks[block]);
    if (paragraph < count) {
      const auto* const table = std::get_if<Table>(&document.blocks[block]);
      return table != nullptr ? PlaceInTable(*table, block, paragraph) : Place{block};
    }
    paragraph -= count;
  }
  return Place{document.blocks.size()};
}

int FirstParagraphOf(const RichDocument& document, std::size_t block) {
  int count = 0;
  for (std::size_t i = 0; i < block; ++i) count += CountParagraphs(document.blocks[i]);
  return count;
}

int FirstParagraphOf(const RichDocument& document, const Place& place) {
  int count = FirstParagraphOf(document, place.block);
  if (!place.in_table) return count;
  const Table& table = std::get<Table>(document.blocks[place.block]);
  for (std::size_t row = 0; row <= place.row; ++row) {
    const std::vector<Cell>& cells = table.rows[row].cells;
    const std::size_t end = row == place.row ? place.cell : cells.size();
    for (std::size_t i = 0; i < end; ++i) count += static_cast<int>(cells[i].paragraphs.size());
  }
  return count;
}

const Cell& CellAt(const RichDocument& document, const Place& place) {
  return std::get<Table>(document.blocks[place.block]).rows[place.row].cells[place.cell];
}

const Paragraph& ParagraphAt(const RichDocument& document, const Place& place) {
  static const Paragraph kUnwritten;
  if (place.block >= document.blocks.size()) return kUnwritten;
  if (place.in_table) return CellAt(document, place).paragraphs[place.index];
  return std::get<Paragraph>(document.blocks[place.block]);
}

const Paragraph& ParagraphAt(const RichDocument& document, int paragraph) {
  return ParagraphAt(document, FindPlace(document, paragraph));
}

bool IsOpaque(const Run& run) { return std::holds_alternative<Opaque>(run.content); }

std::string_view ShownText(const Run& run) {
  if (const auto* const text = std::get_if<std::string>(&run.content)) return *text;
  return std::holds_alternative<Picture>(run.content) ? kPicturePlace : std::string_view();
}

std::string ShownText(const Paragraph& paragraph) {
  std::string text;
  for (const Run& run : paragraph.runs) text += ShownText(run);
  return text;
}

int ShownLength(const Paragraph& paragraph) {
  std::size_t length = 0;
  for (const Run& run : paragraph.runs) length += ShownText(run).size();
  return static_cast<int>(length);
}

Position Clamped(const RichDocument& document, Position position) {
  const int count = CountParagraphs(document);
  if (position.paragraph < 0) return {};
  if (position.paragraph >= count) return EndOf(document);
  const Paragraph& paragraph = ParagraphAt(document, position.paragraph);
  int rest = std::max(position.offset, 0);
  position.offset = 0;
  for (const Run& run : paragraph.runs) {
    const std::string_view text = ShownText(run);
    std::size_t end = std::min(Index(rest), text.size());
    while (end > 0 && end < text.size() && Continues(text[end])) --end;
    position.offset += static_cast<int>(end);
    rest -= static_cast<int>(text.size());
    if (rest <= 0) break;
  }
  return position;
}

Range Clamped(const RichDocument& document, Range range) {
  range.from = Clamped(document, range.from);
  range.to = Clamped(document, range.to);
  if (range.to < range.from) std::swap(range.from, range.to);
  return range;
}

Position EndOf(const RichDocument& document) {
  const int last = CountParagraphs(document) - 1;
  return {last, ShownLength(ParagraphAt(document, last))};
}

std::string ShownText(const RichDocument& document, const Range& range) {
  std::string text;
  for (int i = range.from.paragraph; i <= range.to.paragraph; ++i) {
    if (i != range.from.paragraph) text += '\n';
    std::string part = ShownText(ParagraphAt(document, i));
    if (i == range.to.paragraph) part.resize(Index(range.to.offset));
    if (i == range.from.paragraph) part.erase(0, Index(range.from.offset));
    text += part;
  }
  return text;
}

std::optional<Range> FindText(const RichDocument& document, std::string_view utf8, Position from) {
  if (utf8.empty()) return std::nullopt;
  from = Clamped(document, from);
  std::size_t begin = Index(from.offset);
  int number = 0;
  std::optional<Range> found;
  const auto search = [&](const Paragraph& paragraph) {
    if (number++ < from.paragraph || found) return;
    const std::size_t at = ShownText(paragraph).find(utf8, std::exchange(begin, 0));
    if (at == std::string::npos) return;
    const int offset = static_cast<int>(at);
    found = Range{{number - 1, offset}, {number - 1, offset + static_cast<int>(utf8.size())}};
  };
  ForEachParagraph(document, search);
  return found;
}

std::string DefaultFontName(const RichDocument& document) {
  const auto font = std::ranges::find(document.fonts, document.default_font, &Font::number);
  return font == document.fonts.end() ? std::string() : font->name;
}

}  // namespace tarnwell::richtext
