// The spelling check that screens call.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/context.h"
#include "proofing/checked_text.h"
#include "proofing/spelling_session.h"

namespace tarnwell::proofing {

// Checks the text from its start, with the modal form VSSpell1 while there are words to ask about.
// Where no dictionary is installed only the table of corrections works; that is told once a run.
SpellingResult CheckSpelling(forms::Context& context, CheckedText& text);

// What the status bar says behind a check: "3 words corrected".
std::string CorrectedNote(std::size_t corrected);

// The box at the end of a check of a screen's entries. The screens call it "Spell Check" or
// "Spelling Check"; that is the box's title and the beginning of its text.
void ReportCheckedEntries(forms::Context& context, std::string_view title, bool changed);

}  // namespace tarnwell::proofing
