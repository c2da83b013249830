#include "print/rich_box.h"

#include <algorithm>
#include <utility>

#include "print/rich_table.h"
#include "print/text_boxes.h"
#include "richtext/kept_words.h"
#include "richtext/nested_table.h"

namespace tarnwell::print {
namespace {

constexpr int kMostNested = 8;

const std::string* NestedTables(const richtext::Paragraph& paragraph) {
  if (paragraph.runs.empty()) return nullptr;
  const auto* const opaque = std::get_if<richtext::Opaque>(&paragraph.runs.front().content);
  return opaque != nullptr && opaque->resets_paragraph ? &opaque->rtf : nullptr;
}

}  // namespace

void RichBox::Add(std::span<const richtext::Paragraph> paragraphs) {
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    const richtext::Paragraph& paragraph = paragraphs[i];
    if (const std::string* const tables = NestedTables(paragraph)) {
      AddNested(*tables);
    }
    FrameJoints joints;
    if (i > 0) joints.above = printing_.styles.AreJoined(paragraphs[i - 1], paragraph);
    if (i + 1 < paragraphs.size()) {
      joints.below = printing_.styles.AreJoined(paragraph, paragraphs[i + 1]);
    }
    AddParagraph(paragraph, joints);
  }
}

void RichBox::Add(const std::vector<richtext::Block>& blocks) {
  for (const richtext::Block& block : blocks) {
    if (const auto* const table = std::get_if<richtext::Table>(&block)) {
      AddTable(*table);
    } else {
      Add(std::span(&std::get<richtext::Paragraph>(block), 1));
    }
  }
}

void RichBox::AddNested(const std::string& tables) {
  if (printing_.depth == kMostNested) return;
  ++printing_.depth;
  Add(printing_.parts.Read(richtext::Unnested(tables)).blocks);
  --printing_.depth;
}

void RichBox::AddParagraph(const richtext::Paragraph& paragraph, FrameJoints joints) {
  if (printing_.depth < kMostNested) {
    ++printing_.depth;
    for (const richtext::Table& box : TextBoxesOf(printing_, paragraph)) AddTable(box);
    --printing_.depth;
  }
  PrintedText::Printed printed;
  const bool changes = PrintedText::Changes(paragraph);
  if (changes) printed = printing_.text.Of(paragraph);
  const richtext::Paragraph& shown = changes ? printed.paragraph : paragraph;
  const bool stays_with_next = richtext::HoldsKept("keepn", paragraph.format.other);
  int gap = last_gap_ + paragraph.format.space_before;
  ParagraphLines lines(shown, printing_.styles, {room_.width, room_.height, joints});
  for (Item item; lines.Next(item.line); item = {}) {
    item.gap = std::exchange(gap, 0);
    item.stays_with_next = stays_with_next;
    if (joints.above) item.line.frame_above = item.gap;
    items_->push_back(std::move(item));
  }
  last_gap_ = gap + paragraph.format.space_after;
  for (FoundNote& note : printed.notes) notes_.push_back(std::move(note));
}

void RichBox::AddTable(const richtext::Table& table) {
  for (RowBox& row : RowBox::Of(printing_, table.rows, {room_.width, room_.height, 0})) {
    Item item;
    item.gap = std::exchange(last_gap_, 0);
    item.row = std::make_shared<RowBox>(std::move(row));
    item.line.height = item.row->height();
    for (FoundNote& note : item.row->TakeNotes()) notes_.push_back(std::move(note));
    items_->push_back(std::move(item));
  }
}

int RichBox::HeightLeft() const { return HeightOf(count_left()) + last_gap_; }

std::size_t RichBox::FittingLines(int room) const {
  std::size_t i = next_;
  while (i < items_->size() && (room -= (*items_)[i].height()) >= 0) ++i;
  return i - next_;
}

int RichBox::HeightOf(std::size_t count) const {
  int height = 0;
  for (std::size_t i = next_; i < next_ + count; ++i) height += (*items_)[i].height();
  return height;
}

int RichBox::LevelHeight(int columns) const {
  int most = HeightLeft();
  for (int least = most / std::max(columns, 1); least < most;) {
    const int middle = least + (most - least) / 2;
    if (FitsIn(columns, middle)) {
      most = middle;
    } else {
      least = middle + 1;
    }
  }
  return most;
}

bool RichBox::FitsIn(int columns, int height) const {
  int column = 1;
  int used = 0;
  int together = 0;  // the items that stay with the one in hand, and that one
  int gap = 0;       // above the first of them
  for (std::size_t i = next_; i < items_->size(); ++i) {
    const Item& item = (*items_)[i];
    if (together == 0) gap = item.gap;
    together += item.height();
    if (item.stays_with_next && i + 1 < items_->size()) continue;
    if (used > 0 && used + together > height) {
      if (++column > columns) return false;
      used = -gap;
    }
    used += std::exchange(together, 0);
    if (used > height) return false;
  }
  return true;
}

void RichBox::PlaceNext(std::size_t count, int x, int y) {
  for (const std::size_t end = next_ + count; next_ < end; ++next_) {
    const Item& item = (*items_)[next_];
    y += item.gap;
    if (item.row) {
      item.row->Place(x, y, item.line.height);
    } else {
      PlaceLine(printing_.engine, printing_.styles, item.line, x, y);
    }
    y += item.line.height;
  }
}

}  // namespace tarnwell::print
