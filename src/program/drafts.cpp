#include "program/drafts.h"

#include <string_view>

#include "forms/message.h"
#include "forms/navigator.h"
#include "storage/file_names.h"
#include "text/date_mask.h"

namespace tarnwell::program {
namespace {

namespace file_names = storage::file_names;

constexpr const char* kDraftTitle = "Text That Was Not Saved";

std::string FileOf(std::string_view form) {
  return std::string(file_names::kUnsavedPrefix).append(form).append(file_names::kUnsavedExtension);
}

std::vector<std::string> MarksOf(storage::ProgramFolder& folder, const forms::Draft& draft) {
  std::vector<std::string> marks;
  for (const std::string& file : draft.files) marks.push_back(MarkOf(folder, file));
  return marks;
}

}  // namespace

void Drafts::Keep() {
  forms::Navigator& navigator = context_.navigator;
  if (navigator.ended() || !navigator.top() || navigator.top()->busy()) return;
  for (const std::string& name : navigator.Names()) {
    forms::Form* form = navigator.Find(name);
    const auto draft = form && form->unsaved() ? form->TakeDraft() : std::nullopt;
    draft ? KeepOf(name, *draft) : Remove(name);
  }
}

void Drafts::KeepOf(const std::string& form, const forms::Draft& draft) {
  KeptDraft kept{{}, draft, MarksOf(context_.folder, draft)};
  std::string content = ToBytes(kept);
  if (const auto found = kept_.find(form); found != kept_.end() && found->second == content) return;
  kept.kept = text::FormatDate(context_.clock.Now(), "mmmm d, yyyy h:nn AM/PM");
  if (context_.folder.WriteWhole(FileOf(form), ToBytes(kept))) kept_[form] = std::move(content);
}

// One that couldn't be shown at the start stays.
void Drafts::Remove(const std::string& form) {
  if (kept_.erase(form) > 0) context_.folder.Delete(FileOf(form));
}

void Drafts::Offer() {
  for (const std::string& form : context_.navigator.Names()) {
    const storage::ReadResult read = context_.folder.Read(FileOf(form));
    if (read.fault != storage::Fault::kNone) continue;
    const auto kept = FromBytes(read.content);
    if (kept && kept->marks == MarksOf(context_.folder, kept->draft)) {
      Offer(form, *kept);
    } else {
      context_.folder.Delete(FileOf(form));
    }
  }
}

void Drafts::Offer(const std::string& form, const KeptDraft& kept) {
  const std::string which = kept.draft.title + "\n(" + kept.kept + ")";
  const forms::Answer answer = forms::ShowMessage(
      context_, {kDraftTitle,
                 "The program ended before this was saved:\n\n" + which +
                     "\n\nIt was kept. Show it again, to be saved?\nNo throws it away.",
                 forms::Icon::kQuestion, forms::Buttons::kYesNo});
  if (answer != forms::Answer::kYes) {
    context_.folder.Delete(FileOf(form));
    return;
  }
  context_.navigator.Show(form);
  forms::Form* shown = context_.navigator.Find(form);
  if (shown && shown->PutDraft(forms::DraftTexts(kept.draft.texts))) {
    kept_[form] = {};
    return;
  }
  forms::ShowMessage(
      context_, {kDraftTitle,
                 "This can't be shown now:\n\n" + which + "\n\nIt stays kept, for the next start.",
                 forms::Icon::kExclamation});
}

void Drafts::Forget() {
  while (!kept_.empty()) Remove(std::string(kept_.begin()->first));
}

}  // namespace tarnwell::program
