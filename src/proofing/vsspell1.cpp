#include "proofing/vsspell1.h"

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

constexpr int kSpellingHelp = 5050;
constexpr std::size_t kSurroundingWidth = 36;  // characters on either side of the word

}  // namespace

VSSpell1::VSSpell1(forms::Context& context)
    : Form(context, forms::form_names::kVSSpell1, "Spell Check") {
  SetHelpContext(kSpellingHelp);
  change_to.on_change = [this] { EnableChanges(); };
  change_to.on_enter = [this] { change.Click(); };
  suggestions.on_pick = [this] {
    change_to.SetText(suggestions.text());
    EnableChanges();
  };
  suggestions.on_open = [this] { change.Click(); };
  change.on_click = [this] { Change(false); };
  change_all.on_click = [this] { Change(true); };
  ignore.on_click = [this] { Next(); };
  ignore_all.on_click = [this] {
    session->IgnoreAll();
    Next();
  };
  add.on_click = [this] {
    if (const auto added = session->Add(); !added) {
      forms::TellNotSaved(context_, "The word", added.fault());
    }
    Next();
  };
  help.on_click = [this] { context_.help.Show(kSpellingHelp); };
  cancel.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
}

void VSSpell1::Load() {
  if (session) ShowWord();
}

bool VSSpell1::QueryUnload(forms::UnloadCause) {
  if (session) session->Cancel();
  return true;
}

void VSSpell1::ShowWord() {
  const Surroundings sentence = session->surroundings(kSurroundingWidth);
  before.SetCaption(sentence.before);
  word.SetCaption(sentence.word);
  after.SetCaption(sentence.after);
  suggestions.SetItems(session->Suggestions());
  suggestions.Select(0);
  change_to.SetText(suggestions.items().empty() ? session->word() : suggestions.text());
  EnableChanges();
  change_to.Focus();
}

// There is something to change the word to.
void VSSpell1::EnableChanges() {
  const std::string right = text::Trim(change_to.text());
  const bool differs = !right.empty() && right != session->word();
  change.SetEnabled(differs);
  change_all.SetEnabled(differs);
}

void VSSpell1::Change(bool everywhere) {
  const std::string right = text::Trim(change_to.text());
  everywhere ? session->ChangeAll(right) : session->Change(right);
  Next();
}

void VSSpell1::Next() {
  if (session->FindNext()) return ShowWord();
  context_.navigator.Unload(*this);
}

}  // namespace tarnwell::proofing
