#include "print/rich_text.h"

#include <algorithm>

#include "print/rich_flow.h"

namespace tarnwell::print {
namespace {

using richtext::Section;

// Whether the columns of a section end level: another one goes on below them.
bool EndsLevel(const std::vector<Section>& sections, std::size_t number) {
  return sections[number].columns > 1 && number + 1 < sections.size() &&
         sections[number + 1].begin == Section::Begin::kHere;
}

ColumnLevel LevelOf(RichPrinting& printing, const richtext::RichDocument& document,
                    const RichPages& pages, std::size_t number) {
  const std::vector<Section>& sections = pages.sections();
  if (!EndsLevel(sections, number)) return {};
  const int most_height = std::max(printing.engine.column_height(), 1);
  RichBox box(printing, pages.ColumnWidth(number), most_height);
  const PrintedText text = printing.text;  // its notes are counted when they are placed
  const auto begin = document.blocks.begin();
  box.Add({begin + static_cast<std::ptrdiff_t>(sections[number].first_block),
           begin + static_cast<std::ptrdiff_t>(sections[number + 1].first_block)});
  ColumnLevel level{box.LevelHeight(sections[number].columns)};
  for (const FoundNote& found : box.TakeNotes()) {
    if (found.is_endnote) continue;
    level.notes = std::max(level.notes, kRoomAboveNotes);
    RichBox note(printing, pages.ColumnWidth(number), most_height);
    note.Add(printing.parts.Read(found.rtf).blocks);
    level.notes += note.HeightLeft();
  }
  printing.text = text;
  return level;
}

FrameJoints JointsAt(const RichStyles& styles, const std::vector<richtext::Block>& blocks,
                     std::size_t i) {
  const auto paragraph = [&](std::size_t at) {
    return at < blocks.size() ? std::get_if<richtext::Paragraph>(&blocks[at]) : nullptr;
  };
  const auto are_joined = [&](std::size_t first) {
    return paragraph(first) && paragraph(first + 1) &&
           styles.AreJoined(*paragraph(first), *paragraph(first + 1));
  };
  return {i > 0 && are_joined(i - 1), are_joined(i)};
}

void AddBlocks(RichPrinting& printing, const richtext::RichDocument& document, RichPages* pages) {
  RichTextFlow flow(printing, pages);
  std::size_t section = 0;
  if (pages) flow.SetColumns(pages->sections()[0], LevelOf(printing, document, *pages, 0));
  for (std::size_t i = 0; i < document.blocks.size(); ++i) {
    if (pages && section + 1 < pages->sections().size() &&
        i == pages->sections()[section + 1].first_block) {
      ++section;
      flow.Begin(section, LevelOf(printing, document, *pages, section));
    }
    if (const auto* const table = std::get_if<richtext::Table>(&document.blocks[i])) {
      flow.Add(*table);
    } else {
      flow.Add(std::get<richtext::Paragraph>(document.blocks[i]),
               JointsAt(printing.styles, document.blocks, i));
    }
  }
  flow.End();
}

}  // namespace

void AddRichText(PageEngine& engine, const richtext::RichDocument& document) {
  RichPrinting printing(engine, document);
  AddBlocks(printing, document, nullptr);
}

void AddRichPages(PageEngine& engine, const richtext::RichDocument& document,
                  const RichPaper& paper) {
  RichPrinting printing(engine, document);
  RichPages pages(printing, document, paper);
  AddBlocks(printing, document, &pages);
  pages.Finish();
  engine.SetColumns(1, 0);
}

}  // namespace tarnwell::print
