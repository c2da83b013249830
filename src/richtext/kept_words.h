// Control words outside the model, kept as a text such as "\lang1033\caps".

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

// Adds a word's source, such as "\lang1033". What would make the text longer than a sound document
// ever needs is left out.
void KeepWord(std::string_view source, std::string& kept);

// The same for a property: the word takes the place of an earlier one of its name.
void KeepProperty(std::string_view name, std::string_view source, std::string& kept);

void RemoveKept(std::string_view name, std::string& kept);
bool HoldsKept(std::string_view name, std::string_view kept);

}  // namespace tarnwell::richtext
