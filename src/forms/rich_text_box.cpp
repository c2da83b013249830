#include "forms/rich_text_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/rich_color.h"
#include "richtext/editor.h"
#include "richtext/fragment.h"
#include "richtext/limits.h"
#include "richtext/paragraphs.h"
#include "richtext/plain_text.h"
#include "richtext/selection.h"
#include "richtext/typed_text.h"

namespace tarnwell::forms {
namespace {

using richtext::CharacterFormat;
using richtext::Editor;
using richtext::Position;
using richtext::Range;
using richtext::StepKind;
using richtext::Typing;

constexpr std::size_t kMostSpans = 1000;
constexpr int kMostLookedAt = 1000;  // changes of format

// The selection's kind of underline stays where it is underlined already.
void SetUnderline(bool underlined, CharacterFormat& format) {
  if (underlined == (format.underline != richtext::Underline::kNone)) return;
  format.underline = underlined ? richtext::Underline::kSingle : richtext::Underline::kNone;
}

template <typename Part>
void KeepCommon(const std::optional<Part>& other, std::optional<Part>& part) {
  if (part != other) part.reset();
}

void KeepCommon(const FontParts& other, FontParts& parts) {
  KeepCommon(other.name, parts.name);
  KeepCommon(other.size, parts.size);
  KeepCommon(other.bold, parts.bold);
  KeepCommon(other.italic, parts.italic);
  KeepCommon(other.underline, parts.underline);
  KeepCommon(other.strike, parts.strike);
  KeepCommon(other.color, parts.color);
}

}  // namespace

void RichTextBox::SetDocument(richtext::RichDocument document) {
  document_ = std::move(document);
  history_.Clear();
  selection_ = {};
  typing_format_.reset();
  // More than any view has seen, so that each shows the document anew.
  spans_.clear();
  spans_made_ += kMostSpans;
  Changed();
}

bool RichTextBox::IsBlank() const { return richtext::HoldsNothing(document_); }

void RichTextBox::SetLocked(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  Changed();
}

void RichTextBox::SetTextColor(std::optional<Color> color) {
  if (text_color_ == color) return;
  text_color_ = color;
  Changed();
}

void RichTextBox::SetBackground(std::optional<Color> color) {
  if (background_ == color) return;
  background_ = color;
  Changed();
}

int RichTextBox::paragraph_count() const { return richtext::CountParagraphs(document_); }

std::string RichTextBox::ParagraphText(int paragraph) const {
  if (paragraph < 0 || paragraph >= paragraph_count()) return {};
  return richtext::ShownText(richtext::ParagraphAt(document_, paragraph));
}

std::string RichTextBox::SelectedText() const {
  return richtext::SelectedText(document_, selection_);
}

richtext::RichDocument RichTextBox::SelectedPart() const {
  richtext::RichDocument part = richtext::Slice(document_, selection_);
  richtext::Detach(part);
  return part;
}

void RichTextBox::Select(Range range) {
  ++scroll_requests_;
  if (!MoveTo(range)) return Changed();
  Changed();
  Run(on_selection);
}

std::optional<Range> RichTextBox::Find(std::string_view utf8, Position from) const {
  return richtext::FindText(document_, utf8, from);
}

bool RichTextBox::MoveTo(Range range) {
  range = richtext::Clamped(document_, range);
  if (range == selection_) return false;
  selection_ = range;
  typing_format_.reset();
  history_.EndStep();
  return true;
}

bool RichTextBox::Do(StepKind kind, const Edit& edit) {
  Editor editor(document_);
  const Range before = selection_;
  const Range after = richtext::Clamped(document_, edit(editor));
  const bool moved = after != before;
  selection_ = after;
  history_.Record(editor, document_, before, after, kind);
  Keep(editor.spans());
  if (!editor.changes().empty()) typing_format_.reset();
  if (moved || !editor.changes().empty()) Changed();
  return !editor.changes().empty();
}

void RichTextBox::Keep(const std::vector<richtext::ChangedSpan>& spans) {
  spans_.insert(spans_.end(), spans.begin(), spans.end());
  spans_made_ += spans.size();
  while (spans_.size() > kMostSpans) spans_.pop_front();
}

std::optional<std::vector<richtext::ChangedSpan>> RichTextBox::SpansFrom(std::size_t known) const {
  const std::size_t count = spans_made_ - known;
  if (count > spans_.size()) return std::nullopt;
  return std::vector<richtext::ChangedSpan>(spans_.end() - static_cast<std::ptrdiff_t>(count),
                                            spans_.end());
}

Position RichTextBox::InsertPlain(Editor& editor, Position at, std::string_view utf8,
                                  const Typing& typing) {
  const std::string text = richtext::TypedText(utf8);
  if (text.find('\n') != std::string::npos) return editor.InsertLines(at, text, typing);
  return editor.InsertText(at, richtext::WithLineBreaks(text), typing);
}

CharacterFormat RichTextBox::StartFormat() const {
  if (typing_format_) return *typing_format_;
  const Position start = richtext::SelectedBy(document_, selection_).begin();
  const richtext::Paragraph& paragraph = richtext::ParagraphAt(document_, start.paragraph);
  return selection_.empty() ? richtext::TypingAt(paragraph, start.offset).format
                            : richtext::FormatBehind(paragraph, start.offset);
}

void RichTextBox::Replace(Range range, std::string_view utf8) {
  if (locked()) return;
  range = richtext::Clamped(document_, range);
  const richtext::Paragraph& paragraph = richtext::ParagraphAt(document_, range.from.paragraph);
  Typing typing = richtext::TypingAt(paragraph, range.from.offset);
  if (!range.empty()) typing.format = richtext::FormatBehind(paragraph, range.from.offset);
  Do(StepKind::kOther, [&](Editor& editor) {
    const Position end = InsertPlain(editor, editor.Erase(range), utf8, typing);
    return Range{end, end};
  });
}

Font RichTextBox::FontOf(const CharacterFormat& format) const {
  Font font;
  font.name = format.font.empty() ? richtext::DefaultFontName(document_) : format.font;
  if (font.name.empty()) font.name = Font().name;
  font.size = format.half_points / 2.0;
  font.bold = format.bold;
  font.italic = format.italic;
  font.underline = format.underline != richtext::Underline::kNone;
  font.strike = format.strike;
  font.color = format.color ? FromRich(*format.color) : text_color_.value_or(kBlack);
  return font;
}

FontParts RichTextBox::SelectionFont() const {
  if (typing_format_ || selection_.empty()) return FontOf(StartFormat());
  std::optional<FontParts> common;
  int looked_at = 0;
  richtext::ForEachFormat(document_, selection_, [&](const CharacterFormat& format) {
    const FontParts font = FontOf(format);
    common ? KeepCommon(font, *common) : void(common = font);
    return ++looked_at < kMostLookedAt && *common != FontParts();
  });
  return common.value_or(FontOf(StartFormat()));
}

void RichTextBox::SetSelectionFont(const FontParts& parts) {
  if (!locked() && parts != FontParts()) ReformatSelection(ChangeTo(parts));
}

RichTextBox::Reformatting RichTextBox::ChangeTo(const FontParts& parts) {
  return [parts](CharacterFormat& format) {
    if (parts.name) format.font = *parts.name;
    if (parts.size) {
      format.half_points = std::clamp(static_cast<int>(std::lround(*parts.size * 2)), 1,
                                      richtext::kLargestHalfPoints);
    }
    format.bold = parts.bold.value_or(format.bold);
    format.italic = parts.italic.value_or(format.italic);
    if (parts.underline) SetUnderline(*parts.underline, format);
    format.strike = parts.strike.value_or(format.strike);
    if (parts.color) format.color = ToRich(*parts.color);
  };
}

bool RichTextBox::ReformatSelection(const Reformatting& change) {
  if (!selection_.empty()) {
    return Do(StepKind::kOther, [&](Editor& editor) {
      editor.Reformat(selection_, change);
      return selection_;
    });
  }
  CharacterFormat format = StartFormat();
  change(format);
  typing_format_ = std::move(format);
  Changed();
  return false;
}

richtext::Alignment RichTextBox::SelectionAlignment() const {
  const Position start = richtext::SelectedBy(document_, selection_).begin();
  return richtext::ParagraphAt(document_, start.paragraph).format.alignment;
}

void RichTextBox::SetSelectionAlignment(richtext::Alignment alignment) {
  if (locked()) return;
  Do(StepKind::kOther, [&](Editor& editor) {
    editor.ReformatParagraphs(selection_, [alignment](richtext::ParagraphFormat& format) {
      format.alignment = alignment;
    });
    return selection_;
  });
}

}  // namespace tarnwell::forms
