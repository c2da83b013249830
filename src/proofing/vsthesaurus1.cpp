#include "proofing/vsthesaurus1.h"

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "proofing/synonyms.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

constexpr std::size_t kLongestShown = 48;  // characters of a selected text

// "firm (generic term)" is "firm".
std::string WithoutNote(std::string_view synonym) {
  return text::TrimRight(synonym.substr(0, synonym.find(" (")));
}

}  // namespace

VSThesaurus1::VSThesaurus1(forms::Context& context)
    : Form(context, forms::form_names::kVSThesaurus1, "Thesaurus") {
  meanings.on_pick = [this] { ShowSynonyms(); };
  synonyms.on_pick = [this] { TakeSynonym(); };
  synonyms.on_open = [this] { replace.Click(); };
  replace_with.on_change = [this] { EnableCommands(); };
  replace_with.on_enter = [this] { replace.Click(); };
  replace.on_click = [this] { Replace(); };
  look_up.on_click = [this] { LookUp(); };
  previous.on_click = [this] { GoBack(); };
  cancel.on_click = [this] { context_.navigator.Unload(*this); };
}

void VSThesaurus1::Load() {
  words_ = {start};
  ShowWord();
}

void VSThesaurus1::ShowWord() {
  const std::string& shown = words_.back();
  found_ = context_.thesaurus.LookUp(shown);
  word.SetCaption(text::Left(shown, kLongestShown));
  note.SetCaption(found_.empty() ? "No synonyms have been found." : "");
  note.SetVisible(found_.empty());
  std::vector<std::string> descriptions;
  for (const forms::Meaning& meaning : found_) descriptions.push_back(meaning.description);
  meanings.SetItems(std::move(descriptions));
  meanings.Select(0);
  replace_with.SetText(shown);
  ShowSynonyms();
  (found_.empty() ? static_cast<forms::Control&>(replace_with) : meanings).Focus();
}

// Those of the meaning in hand.
void VSThesaurus1::ShowSynonyms() {
  const int meaning = meanings.selected();
  synonyms.SetItems(meaning == forms::ListBox::kNone
                        ? std::vector<std::string>()
                        : found_[static_cast<std::size_t>(meaning)].synonyms);
  synonyms.Select(0);
  TakeSynonym();
}

// The field shows what a replacement would put into the text.
void VSThesaurus1::TakeSynonym() {
  if (synonyms.selected() != forms::ListBox::kNone) {
    replace_with.SetText(ReplacementFor(start, WithoutNote(synonyms.text())));
  }
  EnableCommands();
}

void VSThesaurus1::EnableCommands() {
  const std::string chosen = text::Trim(replace_with.text());
  replace.SetEnabled(!chosen.empty() && chosen != start);
  look_up.SetEnabled(!chosen.empty());
  previous.SetEnabled(words_.size() > 1);
}

// Goes on with the synonym in hand, or with what was typed instead of it.
void VSThesaurus1::LookUp() {
  const std::string picked = WithoutNote(synonyms.text());
  const bool typed = replace_with.text() != ReplacementFor(start, picked);
  words_.push_back(typed ? text::Trim(replace_with.text()) : picked);
  ShowWord();
}

void VSThesaurus1::GoBack() {
  words_.pop_back();
  ShowWord();
}

void VSThesaurus1::Replace() {
  if (on_replace) on_replace(text::Trim(replace_with.text()));
  context_.navigator.Unload(*this);
}

}  // namespace tarnwell::proofing
