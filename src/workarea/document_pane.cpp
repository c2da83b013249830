#include "workarea/document_pane.h"

namespace tarnwell::workarea {

void DocumentPane::Enter(Area area) {
  view_.LendTo(this);
  Show(area);
}

void DocumentPane::Leave() {
  Hide();
  CloseDocument();
  view_.LendTo(nullptr);
}

PaneMenu DocumentPane::Menu() {
  const auto copy = [this] { view_.CopyToClipboard(); };
  // These need a text that can be read, as printing does.
  const auto archive = [this] { view_.on_archive(); };
  const auto view_archive = [this] { view_.on_view_archive(); };
  return {{"mOClip", {copy, {&view_.print_options}}},
          {"mOArchive", {archive, {&view_.print_options}}},
          {"mOArchiveV", {view_archive, {&view_.print_options}}},
          {"mOFont", forms::ActionOf(view_.tools.font)},
          {"mOSpell", forms::ActionOf(view_.tools.spelling)},
          {"mOThes", forms::ActionOf(view_.tools.thesaurus)},
          {"mOP", forms::ActionOf(view_.print_options)},
          {"mOS", forms::ActionOf(view_.save)}};
}

std::optional<forms::Draft> DocumentPane::TakeDraft() {
  auto draft = view_.unsaved() ? Place() : std::nullopt;
  if (draft) draft->Add(view_.Bytes());
  return draft;
}

bool DocumentPane::PutDraft(forms::DraftTexts& texts) {
  if (!GoTo(texts) || view_.access() != DocumentView::Access::kEdit) return false;
  view_.PutUnsaved(texts.Next());
  return true;
}

}  // namespace tarnwell::workarea
