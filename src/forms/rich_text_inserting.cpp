// Tables, links and pictures, and what takes the place of words that were looked for.

#include <utility>

#include "forms/rich_text_box.h"
#include "richtext/editor.h"
#include "richtext/field_link.h"
#include "richtext/paragraphs.h"
#include "richtext/selection.h"

namespace tarnwell::forms {

using richtext::Editor;
using richtext::Position;
using richtext::Range;
using richtext::StepKind;

void RichTextBox::InsertTable(int rows, int columns) {
  if (!CanEdit()) return;
  Tell(Do(StepKind::kOther, [=, this](Editor& editor) {
    const Position at = editor.InsertTable(editor.Erase(selection_), rows, columns);
    return Range{at, at};
  }));
}

void RichTextBox::EditTable(richtext::TableEdit edit) { EditTableAt(selection_, edit); }

void RichTextBox::EditTableAt(const Range& range, richtext::TableEdit edit) {
  if (!CanEdit()) return;
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    const Position at = editor.EditTable(range, edit);
    return Range{at, at};
  }));
}

void RichTextBox::TabToCell(bool forward) {
  const Position from = forward ? selection_.to : selection_.from;
  const richtext::Place place = richtext::FindPlace(document_, from.paragraph);
  if (!place.in_table) return;
  if (const auto next = richtext::NextCell(document_, from, forward)) return MoveSelection(*next);
  if (!forward) return;
  const Position last{richtext::FirstParagraphOf(document_, place.block + 1) - 1, 0};
  EditTableAt({last, last}, richtext::TableEdit::kRowBelow);
}

bool RichTextBox::Link(std::string_view address) {
  if (!CanEdit() || !richtext::IsLinkAddress(address)) return false;
  const Range range = selection_;
  if (range.from.paragraph != range.to.paragraph) return false;
  const richtext::Paragraph& paragraph = richtext::ParagraphAt(document_, range.from.paragraph);
  const richtext::Typing typing = richtext::TypingAt(paragraph, range.from.offset);
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    const Position end = range.empty() ? editor.InsertText(range.from, address, typing) : range.to;
    editor.Link({range.from, end}, address);
    return Range{end, end};
  }));
  return true;
}

void RichTextBox::InsertPicture(richtext::Picture picture) {
  if (!CanEdit()) return;
  richtext::Paragraph paragraph;
  paragraph.runs.push_back({StartFormat(), std::move(picture), richtext::kNoField});
  richtext::RichDocument part;
  part.blocks.emplace_back(std::move(paragraph));
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    const Position at = editor.Insert(editor.Erase(selection_), std::move(part));
    return Range{at, at};
  }));
}

int RichTextBox::ReplaceAll(const richtext::Search& search, std::string_view utf8) {
  if (!CanEdit()) return 0;
  const std::vector<Range> places = richtext::FindAll(document_, search);
  if (places.empty()) return 0;
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    // From the end on, so that the places before stay.
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
      const richtext::Paragraph& paragraph =
          richtext::ParagraphAt(document_, place->from.paragraph);
      richtext::Typing typing = richtext::TypingAt(paragraph, place->from.offset);
      typing.format = richtext::FormatBehind(paragraph, place->from.offset);
      editor.InsertText(editor.Erase(*place), utf8, typing);
    }
    return selection_;
  }));
  return static_cast<int>(places.size());
}

}  // namespace tarnwell::forms
