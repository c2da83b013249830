#include "proofing/spelling.h"

#include <string>

#include "forms/form_names.h"
#include "forms/message.h"
#include "forms/navigator.h"
#include "proofing/vsspell1.h"

namespace tarnwell::proofing {
namespace {

void TellOfMissingDictionary(forms::Context& context) {
  if (context.speller.available() || context.variables.no_dictionary_told) return;
  context.variables.no_dictionary_told = true;
  forms::ShowMessage(context, {"Spell Check",
                               "There is no dictionary of American English on this computer.\n"
                               "Only frequent slips of the typing are corrected.",
                               forms::Icon::kInformation});
}

}  // namespace

SpellingResult CheckSpelling(forms::Context& context, CheckedText& text) {
  TellOfMissingDictionary(context);
  SpellingSession session(context.speller, context.folder, text);
  const bool asks = [&] {
    const forms::Hourglass hourglass(context.window);
    return session.FindNext();
  }();
  if (asks) {
    context.navigator.ShowModal(forms::form_names::kVSSpell1, [&session](forms::Form& form) {
      static_cast<VSSpell1&>(form).session = &session;
    });
  }
  return session.result();
}

std::string CorrectedNote(std::size_t corrected) {
  return std::to_string(corrected) + (corrected == 1 ? " word" : " words") + " corrected";
}

void ReportCheckedEntries(forms::Context& context, std::string_view title, bool changed) {
  const std::string name(title);
  forms::ShowMessage(context,
                     {name,
                      changed ? name + " has been canceled or has reached the end of your entries"
                              : name + " did not change or did not find any misspelled words!",
                      forms::Icon::kInformation});
}

}  // namespace tarnwell::proofing
