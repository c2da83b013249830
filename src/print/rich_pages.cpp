#include "print/rich_pages.h"

#include <algorithm>

namespace tarnwell::print {
namespace {

constexpr int kLeastPaper = 1440;
constexpr int kMostPaper = 44 * 1440;
constexpr std::size_t kMostBlocks = 100;  // of a header or a footer
constexpr int kLeastText = 720;           // twips each way, that margins leave

// Margins that leave no text any room are made narrower.
void Bound(int size, int& first, int& second) {
  const int most = size - kLeastText;
  if (first + second <= most) return;
  const double scale = static_cast<double>(most) / (first + second);
  first = static_cast<int>(first * scale);
  second = static_cast<int>(second * scale);
}

}  // namespace

RichPages::RichPages(RichPrinting& printing, const richtext::RichDocument& document,
                     const RichPaper& paper)
    : printing_(printing),
      engine_(printing.engine),
      paper_(paper),
      sections_(richtext::SectionsOf(document)),
      has_facing_pages_(richtext::HasFacingPages(document)) {
  engine_.SetPaper([this] { return TakePage(); });
}

void RichPages::Begin(std::size_t section, bool goes_on) {
  section_ = section;
  begins_ = !goes_on;
}

int RichPages::NextNumber() const {
  const std::optional<int>& first = sections_[section_].first_number;
  if (begins_ && first) return *first;
  return pages_.empty() ? 1 : pages_.back().number + 1;
}

int RichPages::ColumnWidth(std::size_t section) const {
  const int columns = sections_[section].columns;
  const forms::PageSetup paper = PaperOf(sections_[section]);
  const int text = paper.width() - paper.margins.left - paper.margins.right;
  return std::max((text - (columns - 1) * sections_[section].column_gap) / columns, 1);
}

bool RichPages::HasSamePaper(std::size_t section) const {
  const forms::PageSetup paper = PaperOf(sections_[section]);
  return pages_.empty() ||
         (paper.width() == engine_.paper().width() && paper.height() == engine_.paper().height());
}

forms::PageSetup RichPages::PaperOf(const richtext::Section& section) const {
  if (paper_.chosen) return *paper_.chosen;
  const int width = std::clamp(section.page.width, kLeastPaper, kMostPaper);
  const int height = std::clamp(section.page.height, kLeastPaper, kMostPaper);
  forms::PageSetup paper;
  paper.landscape = width > height;
  paper.paper_width = std::min(width, height);
  paper.paper_height = std::max(width, height);
  forms::Margins& margins = paper.margins;
  margins = {section.page.left_margin, section.page.top_margin, section.page.right_margin,
             section.page.bottom_margin};
  Bound(width, margins.left, margins.right);
  Bound(height, margins.top, margins.bottom);
  return paper;
}

// Narrow margins that a person has chosen hold for headers and footers too.
int RichPages::Distance(int told, int margin) const {
  return paper_.chosen ? std::min(told, margin) : told;
}

forms::PageSetup RichPages::TakePage() {
  NumberedPage page{engine_.page_count() - 1, section_, begins_, NextNumber()};
  begins_ = false;
  pages_.push_back(page);
  const richtext::Section& section = sections_[section_];
  forms::PageSetup paper = PaperOf(section);
  forms::Margins& margins = paper.margins;
  const auto grow = [&](bool is_header, int told, int& margin) {
    const Rtf rtf = RtfOf(page, is_header);
    if (!rtf) return;
    const int needed = Distance(told, margin) + HeightOf(rtf, page, paper);
    margin = std::clamp(needed, margin, std::max(paper.height() / 2 - kLeastText / 2, margin));
  };
  if (pages_.size() == 1) margins.top = std::max(margins.top, paper_.first_top);
  grow(true, section.header_distance, margins.top);
  grow(false, section.footer_distance, margins.bottom);
  Bound(paper.height(), margins.top, margins.bottom);
  return paper;
}

RichPages::Rtf RichPages::RtfOf(const NumberedPage& page, bool is_header) const {
  const richtext::Section& section = sections_[page.section];
  return richtext::FurnitureOf(is_header ? section.header : section.footer, section, page.is_first,
                               page.number, has_facing_pages_);
}

RichBox RichPages::BoxOf(const Rtf& rtf, const NumberedPage& page, const forms::PageSetup& paper) {
  const auto [known, is_new] = parts_.try_emplace(rtf);
  if (is_new) {
    known->second = printing_.parts.Read(*rtf);
    auto& blocks = known->second.blocks;
    blocks.resize(std::min(blocks.size(), kMostBlocks));
  }
  richtext::RichDocument part = known->second;
  const richtext::Section& section = sections_[page.section];
  SetPageNumbers({page.number, richtext::PageNumberText(page.number, section.numbers),
                  static_cast<int>(pages_.size())},
                 part);
  const int width = paper.width() - paper.margins.left - paper.margins.right;
  RichBox box(printing_, std::max(width, 1), paper.height() / 2);
  box.Add(part.blocks);
  return box;
}

int RichPages::HeightOf(const Rtf& rtf, const NumberedPage& page, const forms::PageSetup& paper) {
  const int width = paper.width() - paper.margins.left - paper.margins.right;
  const auto [known, is_new] = heights_.try_emplace({rtf, width});
  if (is_new) known->second = BoxOf(rtf, page, paper).HeightLeft();
  return known->second;
}

void RichPages::Finish() {
  for (const NumberedPage& page : pages_) {
    engine_.OnPage(page.page, [&] { Place(page); });
  }
  engine_.SetPaper(nullptr);
}

void RichPages::Place(const NumberedPage& page) {
  const richtext::Section& section = sections_[page.section];
  const forms::PageSetup& paper = engine_.paper();
  if (const Rtf rtf = RtfOf(page, true)) {
    RichBox box = BoxOf(rtf, page, paper);
    box.PlaceNext(box.FittingLines(paper.height() / 2), paper.margins.left,
                  Distance(section.header_distance, paper.margins.top));
  }
  if (const Rtf rtf = RtfOf(page, false)) {
    RichBox box = BoxOf(rtf, page, paper);
    const int bottom = paper.height() - Distance(section.footer_distance, paper.margins.bottom);
    const int top = std::max(bottom - box.HeightLeft(), paper.height() - paper.margins.bottom);
    box.PlaceNext(box.FittingLines(paper.height() / 2), paper.margins.left, top);
  }
}

}  // namespace tarnwell::print
