#include "richtext/change.h"

#include <algorithm>
#include <iterator>

namespace tarnwell::richtext {
namespace {

// Puts `blocks` in the place of the `count` elements from `first` on.
template <typename Element>
void Splice(std::vector<Element>& list, std::size_t first, std::size_t count,
            std::vector<Element> blocks) {
  const auto at = list.begin() + static_cast<std::ptrdiff_t>(first);
  const std::size_t common = std::min(count, blocks.size());
  const auto kept =
      std::move(blocks.begin(), blocks.begin() + static_cast<std::ptrdiff_t>(common), at);
  if (count > common) {
    list.erase(kept, at + static_cast<std::ptrdiff_t>(count));
  } else {
    list.insert(kept, std::move_iterator(blocks.begin() + static_cast<std::ptrdiff_t>(common)),
                std::move_iterator(blocks.end()));
  }
}

ChangedSpan Put(const Place& where, const std::vector<Block>& before,
                const std::vector<Block>& after, RichDocument& document) {
  if (!where.in_table) {
    Splice(document.blocks, where.block, before.size(), after);
    return {where, FirstParagraphOf(document, where.block), before.size(), after.size()};
  }
  std::vector<Paragraph> paragraphs;
  for (const Block& block : after) paragraphs.push_back(std::get<Paragraph>(block));
  auto& table = std::get<Table>(document.blocks[where.block]);
  Splice(table.rows[where.row].cells[where.cell].paragraphs, where.index, before.size(),
         std::move(paragraphs));
  const int first = FirstParagraphOf(document, where) + static_cast<int>(where.index);
  return {where, first, before.size(), after.size()};
}

std::size_t SizeOf(const Paragraph& paragraph) {
  std::size_t size = sizeof(Paragraph) + paragraph.format.tabs.size() * sizeof(TabStop) +
                     paragraph.section_break.size();
  for (const Run& run : paragraph.runs) {
    size += sizeof(Run);
    if (const auto* const text = std::get_if<std::string>(&run.content)) size += text->size();
    if (const auto* const picture = std::get_if<Picture>(&run.content)) {
      size += picture->bytes.size() + picture->other.size();
    }
    if (const auto* const opaque = std::get_if<Opaque>(&run.content)) size += opaque->rtf.size();
  }
  return size;
}

std::size_t SizeOf(const Table& table) {
  std::size_t size = sizeof(Table);
  for (const TableRow& row : table.rows) {
    size += sizeof(TableRow);
    for (const Cell& cell : row.cells) {
      size += sizeof(Cell);
      for (const Paragraph& paragraph : cell.paragraphs) size += SizeOf(paragraph);
    }
  }
  return size;
}

}  // namespace

ChangedSpan Apply(const Change& change, RichDocument& document) {
  return Put(change.where, change.before, change.after, document);
}

ChangedSpan TakeBack(const Change& change, RichDocument& document) {
  return Put(change.where, change.after, change.before, document);
}

std::size_t SizeOf(const Change& change) {
  std::size_t size = sizeof(Change);
  for (const std::vector<Block>* const blocks : {&change.before, &change.after}) {
    for (const Block& block : *blocks) {
      size += std::visit([](const auto& part) { return SizeOf(part); }, block);
    }
  }
  return size;
}

}  // namespace tarnwell::richtext
