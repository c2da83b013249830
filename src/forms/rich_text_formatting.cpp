// What a person does in a RichTextBox to the look of the text.

#include "forms/rich_color.h"
#include "forms/rich_text_box.h"
#include "richtext/editor.h"
#include "richtext/paragraphs.h"
#include "richtext/selection.h"

namespace tarnwell::forms {

using richtext::CharacterFormat;
using richtext::Editor;
using richtext::StepKind;

TextLook RichTextBox::SelectionLook() const {
  const richtext::Position start = richtext::SelectedBy(document_, selection_).begin();
  const richtext::Place place = richtext::FindPlace(document_, start.paragraph);
  const richtext::ParagraphFormat& format = richtext::ParagraphAt(document_, place).format;
  const CharacterFormat letters = StartFormat();
  TextLook look;
  look.font = SelectionFont();
  look.alignment = format.alignment;
  look.list = richtext::ListKindOf(format);
  look.in_table = place.in_table;
  if (letters.highlight) look.highlight = FromRich(*letters.highlight);
  return look;
}

void RichTextBox::ToggleBold() {
  Toggle([bold = !StartFormat().bold](CharacterFormat& format) { format.bold = bold; });
}

void RichTextBox::ToggleItalic() {
  Toggle([italic = !StartFormat().italic](CharacterFormat& format) { format.italic = italic; });
}

void RichTextBox::ToggleUnderline() {
  using richtext::Underline;
  const bool is_underlined = StartFormat().underline != Underline::kNone;
  Toggle([underline = is_underlined ? Underline::kNone : Underline::kSingle](
             CharacterFormat& format) { format.underline = underline; });
}

void RichTextBox::ChangeFont(const FontParts& parts) {
  if (parts != FontParts()) Toggle(ChangeTo(parts));
}

void RichTextBox::Highlight(std::optional<Color> color) {
  Toggle([color](CharacterFormat& format) {
    format.highlight.reset();
    if (color) format.highlight = ToRich(*color);
  });
}

void RichTextBox::Toggle(const Reformatting& change) {
  if (CanEdit()) Tell(ReformatSelection(change));
}

void RichTextBox::Align(richtext::Alignment alignment) {
  ChangeParagraphs([=, this](Editor& editor) {
    editor.ReformatParagraphs(selection_, [alignment](richtext::ParagraphFormat& format) {
      format.alignment = alignment;
    });
  });
}

void RichTextBox::SetList(richtext::ListKind kind) {
  ChangeParagraphs([=, this](Editor& editor) { editor.SetList(selection_, kind); });
}

void RichTextBox::Indent(int steps) {
  ChangeParagraphs([=, this](Editor& editor) { editor.Indent(selection_, steps); });
}

void RichTextBox::ChangeParagraphs(const std::function<void(Editor&)>& change) {
  if (!CanEdit()) return;
  Tell(Do(StepKind::kOther, [&](Editor& editor) {
    change(editor);
    return selection_;
  }));
}

}  // namespace tarnwell::forms
