#include "desktop/widgets/rich_text_furniture.h"

#include <algorithm>

#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kMostBlocks = 100;  // of a header or a footer
constexpr std::size_t kMostNotes = 500;   // that are shown
constexpr std::size_t kMostParts = 50;    // that are kept

bool IsSame(const print::FoundNote& a, const print::FoundNote& b) {
  return a.rtf == b.rtf && a.number == b.number && a.is_endnote == b.is_endnote;
}

}  // namespace

void RichTextFurniture::Show(const richtext::RichDocument& document, const RichTextFormats& formats,
                             double width) {
  source_.emplace(document, formats, on_ready_);
  width_ = width;
  parts_.clear();
  notes_.reset();
  found_.clear();
  Follow(document);
}

void RichTextFurniture::Follow(const richtext::RichDocument& document) {
  sections_ = richtext::SectionsOf(document);
  has_facing_pages_ = richtext::HasFacingPages(document);
  FindNotes(document);
}

void RichTextFurniture::FindNotes(const richtext::RichDocument& document) {
  print::PrintedText text;
  std::vector<print::FoundNote> found;
  numbers_.clear();
  int number = -1;
  richtext::ForEachParagraph(document, [&](const richtext::Paragraph& paragraph) {
    ++number;
    if (found.size() >= kMostNotes || !print::PrintedText::Changes(paragraph)) return;
    for (print::FoundNote& note : text.Of(paragraph).notes) {
      if (!note.number.empty()) numbers_[number].push_back(QString::fromStdString(note.number));
      found.push_back(std::move(note));
    }
  });
  if (std::ranges::equal(found, found_, IsSame)) return;
  found_ = std::move(found);
  notes_.reset();
}

QString RichTextFurniture::NumberOf(int paragraph, int note) const {
  const auto known = numbers_.find(paragraph);
  if (known == numbers_.end()) return {};
  const auto place = static_cast<std::size_t>(note);
  return place < known->second.size() ? known->second[place] : QString();
}

// Footnotes first, as on paper.
richtext::RichDocument RichTextFurniture::TextOfNotes() {
  richtext::RichDocument all;
  print::PrintedText text;
  for (const bool is_endnote : {false, true}) {
    for (const print::FoundNote& note : found_) {
      if (note.is_endnote != is_endnote) continue;
      richtext::RichDocument part = source_->Read(note.rtf);
      if (all.fonts.empty()) all = richtext::RichDocument(part), all.blocks.clear();
      text.BeginNote(note.number);
      for (richtext::Block& block : part.blocks) {
        if (auto* const paragraph = std::get_if<richtext::Paragraph>(&block)) {
          for (richtext::Run& run : paragraph->runs) run.field = richtext::kNoField;
          all.blocks.emplace_back(text.Of(*paragraph).paragraph);
        }
      }
      text.EndNote();
    }
  }
  return all;
}

RichTextPart* RichTextFurniture::Notes() {
  if (!notes_ && source_ && !found_.empty()) {
    notes_ = std::make_unique<RichTextPart>(TextOfNotes(), *source_, width_);
  }
  return notes_.get();
}

RichTextPart* RichTextFurniture::PartOf(bool is_header, std::size_t block, int number, int pages) {
  if (!source_) return nullptr;
  const auto behind =
      std::ranges::upper_bound(sections_, block, {}, &richtext::Section::first_block);
  const richtext::Section& section = behind == sections_.begin() ? sections_.front() : behind[-1];
  const int counted = std::max(number, 1);
  const Rtf rtf = richtext::FurnitureOf(is_header ? section.header : section.footer, section,
                                        block <= section.first_block, counted, has_facing_pages_);
  if (!rtf) return nullptr;
  if (parts_.size() > kMostParts) parts_.clear();
  std::unique_ptr<RichTextPart>& part = parts_[{rtf, number, pages}];
  if (!part) {
    richtext::RichDocument text = source_->Read(*rtf);
    text.blocks.resize(std::min(text.blocks.size(), kMostBlocks));
    if (number > 0) {
      print::SetPageNumbers({number, richtext::PageNumberText(number, section.numbers), pages},
                            text);
    }
    part = std::make_unique<RichTextPart>(std::move(text), *source_, width_);
  }
  return part.get();
}

}  // namespace tarnwell::desktop
