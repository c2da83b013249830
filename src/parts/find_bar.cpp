#include "parts/find_bar.h"

#include <utility>

#include "forms/form.h"
#include "richtext/paragraphs.h"
#include "text/utf8.h"

namespace tarnwell::parts {

FindBar::FindBar(forms::Container& parent, forms::RichTextBox& text)
    : panel(parent, "Findbar1"), text_(text) {
  panel.SetVisible(false);
  find.on_enter = [this] { Next(); };
  replace.on_enter = [this] { Replace(); };
  next.on_click = [this] { Next(); };
  previous.on_click = [this] { Previous(); };
  replace_one.on_click = [this] { Replace(); };
  replace_all.on_click = [this] { ReplaceAll(); };
  close.on_click = [this] { Close(); };
  subscription_ = text_.OnChanged([this] {
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&replace, &replace_one, &replace_all}) {
      control->SetEnabled(!text_.locked());
    }
  });
}

void FindBar::AddTo(forms::MenuItem& menu) {
  const auto add = [&](const char* name, const char* caption, const char* key, auto run) {
    entries_.push_back(&menu.AddEntry(name, caption, forms::MenuAction{run, {&text_}}));
    entries_.back()->SetKey(key).SetEnabled(panel.enabled());
  };
  add("mFF", "&Find and Replace", "Ctrl+F", [this] { Open(); });
  add("mFFN", "Find Ne&xt", "F3", [this] { Next(); });
  add("mFFP", "Find Pre&vious", "Shift+F3", [this] { Previous(); });
}

void FindBar::Enable(bool enabled) {
  panel.SetEnabled(enabled);
  for (forms::MenuItem* entry : entries_) entry->SetEnabled(enabled);
  if (!enabled) panel.SetVisible(false);
  Note({});
}

void FindBar::Open() {
  if (!panel.enabled()) return;
  const std::string selected = text_.SelectedText();
  const bool is_a_line = selected.find('\n') == std::string::npos;
  if (!selected.empty() && is_a_line) find.SetWords(text::Utf8(selected));
  panel.SetVisible(true);
  find.Focus();
  find.SelectAll();
}

void FindBar::Close() {
  panel.SetVisible(false);
  Note({});
  text_.Focus();
}

richtext::Search FindBar::Wanted() const {
  return {find.words().bytes(), whole_words.checked(), match_capitals.checked()};
}

void FindBar::Next() {
  if (find.text().empty()) return Open();
  const auto below = richtext::FindNext(text_.document(), Wanted(), text_.selection().to);
  Show(below ? below : richtext::FindNext(text_.document(), Wanted(), {}), !below);
}

void FindBar::Previous() {
  if (find.text().empty()) return Open();
  const auto above = richtext::FindPrevious(text_.document(), Wanted(), text_.selection().from);
  const richtext::Position end = richtext::EndOf(text_.document());
  Show(above ? above : richtext::FindPrevious(text_.document(), Wanted(), end), !above);
}

void FindBar::Show(const std::optional<richtext::Range>& place, bool began_again) {
  if (!place) return NoteNothing();
  Note(began_again ? "The search went on at the other end of the document." : "");
  text_.Select(*place);
}

void FindBar::Replace() {
  if (find.text().empty()) return;
  const richtext::Range selected = text_.selection();
  if (richtext::FindNext(text_.document(), Wanted(), selected.from) == selected) {
    const std::string words = replace.words().bytes();
    words.empty() ? text_.Erase(selected) : text_.Type(words);
  }
  Next();
}

void FindBar::ReplaceAll() {
  if (find.text().empty()) return;
  const int count = text_.ReplaceAll(Wanted(), replace.words().bytes());
  if (count == 0) return NoteNothing();
  Note(count == 1 ? "1 place was replaced." : std::to_string(count) + " places were replaced.");
}

// The status bar can't show words of every script.
void FindBar::NoteNothing() {
  Note((find.IsText() ? "\"" + find.text() + "\" was" : "These words were") + " not found.");
}

void FindBar::Note(const std::string& note) {
  if (note.empty() && !std::exchange(has_noted_, false)) return;
  has_noted_ = !note.empty();
  text_.form().SetStatus(note);
}

}  // namespace tarnwell::parts
