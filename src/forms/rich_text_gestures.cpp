// What a person does in a RichTextBox.

#include <utility>

#include "forms/rich_text_box.h"
#include "richtext/editor.h"
#include "richtext/fragment.h"
#include "richtext/paragraphs.h"
#include "richtext/room.h"
#include "richtext/selection.h"

namespace tarnwell::forms {
namespace {

using richtext::Editor;
using richtext::Position;
using richtext::Range;
using richtext::Selected;
using richtext::StepKind;

// A key's worth of text; more came by a paste or from an input method.
bool IsOneCharacter(std::string_view utf8) {
  std::size_t count = 0;
  for (const char c : utf8) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
  return count == 1;
}

// Where a fragment that was moved from `range` to behind it ends once the range is gone.
Position Moved(Position position, const Range& range, int paragraphs_gone) {
  if (position.paragraph == range.to.paragraph &&
      paragraphs_gone == range.to.paragraph - range.from.paragraph) {
    position.offset += range.from.offset - range.to.offset;
    if (paragraphs_gone == 0) return position;
    return {range.from.paragraph, position.offset};
  }
  position.paragraph -= paragraphs_gone;
  return position;
}

}  // namespace

void RichTextBox::MoveSelection(Range range) {
  if (!Reachable() || !MoveTo(range)) return;
  Changed();
  Run(on_selection);
}

void RichTextBox::Type(std::string_view utf8) {
  if (!CanEdit() || utf8.empty()) return;
  if (!richtext::HasRoomFor(document_, utf8)) return Run(on_too_much);
  const Position start = richtext::SelectedBy(document_, selection_).begin();
  richtext::Typing typing =
      richtext::TypingAt(richtext::ParagraphAt(document_, start.paragraph), start.offset);
  typing.format = StartFormat();
  const bool is_key = IsOneCharacter(utf8) && utf8 != "\n";
  // A word and the blanks behind it are one step; what follows a blank begins the next.
  const bool is_blank = utf8 == " " || utf8 == "\t";
  if (!is_blank && after_blank_) history_.EndStep();
  const bool changed = Do(is_key ? StepKind::kTyping : StepKind::kOther, [&](Editor& editor) {
    const Position end = InsertPlain(editor, editor.Erase(selection_), utf8, typing);
    return Range{end, end};
  });
  after_blank_ = is_blank;
  Tell(changed);
}

void RichTextBox::Erase(Range range) {
  if (!CanEdit()) return;
  range = richtext::Clamped(document_, range);
  const bool is_text = richtext::SelectedBy(document_, range).kind == Selected::Kind::kText;
  if (selection_.empty() && !is_text) return;
  Tell(Do(selection_.empty() ? StepKind::kErasing : StepKind::kOther, [&](Editor& editor) {
    const Position at = editor.Erase(range);
    return Range{at, at};
  }));
}

void RichTextBox::Backspace(Position back_to) {
  const Position at = selection_.from;
  if (!selection_.empty()) return Erase(selection_);
  const richtext::Paragraph& paragraph = richtext::ParagraphAt(document_, at.paragraph);
  if (at.offset > 0 || !paragraph.format.list) return Erase({back_to, at});
  if (!CanEdit()) return;
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    editor.EndList(at);
    return selection_;
  }));
}

void RichTextBox::Paste(const richtext::RichDocument& fragment) {
  if (!CanEdit() || fragment.blocks.empty()) return;
  if (!richtext::HasRoomFor(document_, fragment)) return Run(on_too_much);
  richtext::RichDocument part = fragment;
  richtext::Detach(part);
  richtext::PartLong(part);
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    const Position at = editor.Erase(selection_);
    const Position end = editor.Insert(at, std::move(part));
    return Range{end, end};
  }));
}

void RichTextBox::MoveText(Range range, Position to) {
  range = richtext::Clamped(document_, range);
  to = richtext::Clamped(document_, to);
  const Selected selected = richtext::SelectedBy(document_, range);
  if (!CanEdit() || range.empty() || selected.Holds(to)) return;
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    richtext::RichDocument part = richtext::Slice(document_, range);
    if (to < range.from || selected.kind == Selected::Kind::kCells) {
      // Emptying cells moves no place, only the numbers of paragraphs behind them.
      const richtext::Place place = richtext::FindPlace(document_, to.paragraph);
      editor.Erase(range);
      to.paragraph = richtext::FirstParagraphOf(document_, place) + static_cast<int>(place.index);
      return Range{to, editor.Insert(to, std::move(part))};
    }
    const Position end = editor.Insert(to, std::move(part));
    const int count = paragraph_count();
    editor.Erase(range);
    const int gone = count - paragraph_count();
    const Range& erased = selected.parts.front();
    return Range{Moved(to, erased, gone), Moved(end, erased, gone)};
  }));
}

void RichTextBox::Undo() {
  if (CanEdit()) Finish(history_.Undo(document_));
}

void RichTextBox::Redo() {
  if (CanEdit()) Finish(history_.Redo(document_));
}

void RichTextBox::Finish(const std::optional<richtext::History::Outcome>& outcome) {
  if (!outcome) return;
  selection_ = outcome->selection;
  typing_format_.reset();
  ++scroll_requests_;
  Keep(outcome->spans);
  Changed();
  Tell(true);
}

void RichTextBox::Tell(bool changed) {
  if (!changed) return;
  Run(on_change);
  Run(on_selection);
}

}  // namespace tarnwell::forms
