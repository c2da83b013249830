// How a RichTextBox shows its document, and the widths of columns.

#include "forms/rich_text_box.h"
#include "richtext/editor.h"

namespace tarnwell::forms {

void RichTextBox::SetShowsPages(bool shows) {
  if (shows_pages_ == shows) return;
  shows_pages_ = shows;
  Changed();
}

void RichTextBox::MoveColumnEdge(int paragraph, int from, int to) {
  if (!CanEdit()) return;
  Tell(Do(richtext::StepKind::kOther, [&](richtext::Editor& editor) {
    editor.MoveColumnEdge(paragraph, from, to);
    return selection_;
  }));
}

}  // namespace tarnwell::forms
