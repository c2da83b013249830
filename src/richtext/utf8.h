#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::richtext {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// A surrogate or a number past the last character is added as the replacement character.
void AppendUtf8(char32_t character, std::string& out);

// Takes one character off the front of `rest`, which isn't empty. A byte that can't stand where it
// does gives the replacement character.
char32_t TakeUtf8(std::string_view& rest);

// Where `utf8` may be cut at or before `size` bytes.
std::size_t CharacterStart(std::string_view utf8, std::size_t size);

// UTF-16 units, which come one at a time, to characters.
class Utf16Joiner {
 public:
  // Adds the character that the unit is or ends. The first half of a pair waits for the second.
  void Take(char16_t unit, std::string& utf8);
  // Adds the replacement character for a half that waits: no second half follows it.
  void Flush(std::string& utf8);

 private:
  char16_t high_ = 0;
};

}  // namespace tarnwell::richtext
