// The capitals of a word that takes the place of another. Texts are in code page 1252.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::proofing {

// The correction in the capitals of the word that it replaces: all of them where the word's second
// letter is one, the first where only the word's first is one, else as it is.
std::string WithCapitalsOf(std::string_view word, std::string_view correction);

// A correction that was given for the word, in the form that WithCapitalsOf can be used on again:
// without the capitals that it only has because the word has them.
std::string WithoutCapitalsOf(std::string_view word, std::string_view correction);

}  // namespace tarnwell::proofing
