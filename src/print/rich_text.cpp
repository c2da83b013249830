#include "print/rich_text.h"

#include <algorithm>
#include <utility>

#include "print/rich_flow.h"

namespace tarnwell::print {
namespace {

using richtext::Section;

// Whether the columns of a section end level: another one goes on below them.
bool EndsLevel(const std::vector<Section>& sections, std::size_t number) {
  return sections[number].columns > 1 && number + 1 < sections.size() &&
         sections[number + 1].begin == Section::Begin::kHere;
}

int HeightOf(RichPrinting& printing, const richtext::RichDocument& document,
             const std::vector<Section>& sections, std::size_t number) {
  if (!EndsLevel(sections, number)) return 0;
  const Section& section = sections[number];
  const int text = section.page.width - section.page.left_margin - section.page.right_margin;
  const int width = (text - (section.columns - 1) * section.column_gap) / section.columns;
  RichBox box(printing, std::max(width, 1), std::max(printing.engine.column_height(), 1));
  for (std::size_t i = section.first_block; i < sections[number + 1].first_block; ++i) {
    if (const auto* const one = std::get_if<richtext::Paragraph>(&document.blocks[i])) {
      if (!PrintedText::Changes(*one)) box.Add(std::span(one, 1));
    }
  }
  return box.HeightLeft();
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
  if (pages)
    flow.SetColumns(pages->sections()[0], HeightOf(printing, document, pages->sections(), 0));
  for (std::size_t i = 0; i < document.blocks.size(); ++i) {
    if (pages && section + 1 < pages->sections().size() &&
        i == pages->sections()[section + 1].first_block) {
      ++section;
      flow.Begin(section, HeightOf(printing, document, pages->sections(), section));
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
