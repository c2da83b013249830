#include "proofing/synonyms.h"

#include "forms/form_names.h"
#include "forms/message.h"
#include "forms/navigator.h"
#include "proofing/capitals.h"
#include "proofing/vsthesaurus1.h"
#include "text/code_page_1252.h"

namespace tarnwell::proofing {
namespace {

constexpr const char* kTitle = "Thesaurus";

void TellOfMissingThesaurus(forms::Context& context) {
  if (context.thesaurus.available() || context.variables.no_thesaurus_told) return;
  context.variables.no_thesaurus_told = true;
  forms::ShowMessage(context,
                     {kTitle, "There is no thesaurus of American English on this computer.",
                      forms::Icon::kInformation});
}

}  // namespace

std::string_view WordToLookUp(std::string_view selection) {
  return selection.substr(0, selection.find_last_not_of(" ,.:;") + 1);
}

std::string ReplacementFor(std::string_view word, std::string_view chosen) {
  return WithCapitalsOf(word, chosen.substr(0, chosen.find(' ')));
}

std::optional<std::string> LookUpSynonym(forms::Context& context, std::string_view selection) {
  const std::string word = text::FromUtf8(text::Utf8(WordToLookUp(selection)));
  if (word.empty()) {
    forms::ShowMessage(
        context, {kTitle, "Please highlight word you desire to look up!", forms::Icon::kQuestion});
    return std::nullopt;
  }
  TellOfMissingThesaurus(context);
  std::optional<std::string> chosen;
  context.navigator.ShowModal(forms::form_names::kVSThesaurus1, [&](forms::Form& form) {
    auto& thesaurus = static_cast<VSThesaurus1&>(form);
    thesaurus.start = word;
    thesaurus.on_replace = [&chosen](const std::string& text) { chosen = text; };
  });
  if (!chosen) return std::nullopt;
  return text::ToUtf8(ReplacementFor(word, *chosen)).bytes();
}

}  // namespace tarnwell::proofing
