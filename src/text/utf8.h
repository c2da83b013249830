// Text in UTF-8: that of formatted documents, of the names of files, and of the world outside.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::text {

// A text that is in UTF-8 and not in the core's code page, where the two meet. None becomes the
// other unseen.
class Utf8 {
 public:
  explicit Utf8(std::string_view bytes) : bytes_(bytes) {}

  const std::string& bytes() const { return bytes_; }

  friend bool operator==(const Utf8&, const Utf8&) = default;

 private:
  std::string bytes_;
};

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// A surrogate or a number past the last character is added as the replacement character.
void AppendUtf8(char32_t character, std::string& out);

// Takes one character off the front of `rest`, which isn't empty. Bytes that begin a character and
// break off give one replacement character together; a byte that can't stand where it does is left
// for the next call.
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

}  // namespace tarnwell::text
