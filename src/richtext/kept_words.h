// Control words outside the model, kept as a text such as "\lang1033\caps".

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::richtext {

// Adds a word's source, such as "\lang1033". What would make the text longer than a sound document
// ever needs is left out.
void KeepWord(std::string_view source, std::string& kept);

// The same for a property: the word takes the place of an earlier one of its name, which for some
// must have stood behind the same switch; see script_words.h.
void KeepProperty(std::string_view name, std::string_view source, std::string& kept);

// The words of a character's border, behind "\chbrdr".
void RemoveBorder(std::string& kept);
void RemoveKept(std::string_view name, std::string& kept);
// Where the word stands in `kept`; npos if it doesn't.
std::size_t FindKept(std::string_view name, std::string_view kept);
bool HoldsKept(std::string_view name, std::string_view kept);

// Whether text of a format that keeps these words isn't shown: hidden, or deleted with the change
// still tracked.
bool IsHidden(std::string_view kept);

}  // namespace tarnwell::richtext
