// The thesaurus that screens call, and what becomes of a word on its way there and back.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/context.h"

namespace tarnwell::proofing {

// What is looked up of a selected text: without blanks, commas, periods, colons and semicolons at
// its end. In any encoding.
std::string_view WordToLookUp(std::string_view selection);

// What takes the place of `word` when `chosen` was picked: up to the first blank, in the word's
// capitals. Both in code page 1252.
std::string ReplacementFor(std::string_view word, std::string_view chosen);

// Shows the modal form VSThesaurus1 for the selected text, in UTF-8. The result, in UTF-8 too,
// takes the place of WordToLookUp(selection); empty when nothing is to be replaced. An empty
// selection brings a box instead.
std::optional<std::string> LookUpSynonym(forms::Context& context, std::string_view selection);

}  // namespace tarnwell::proofing
