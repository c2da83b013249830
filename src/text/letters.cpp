#include "text/letters.h"

#include <algorithm>

namespace tarnwell::text {

char UpperCase(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  const bool plain = code >= 'a' && code <= 'z';
  const bool accented = code >= 0xE0 && code <= 0xFE && code != 0xF7;  // F7 is the division sign
  if (plain || accented) return static_cast<char>(code - 0x20);
  switch (code) {
    case 0x9A:  // s with caron
    case 0x9C:  // oe
    case 0x9E:  // z with caron
      return static_cast<char>(code - 0x10);
    case 0xFF:  // y with diaeresis
      return static_cast<char>(0x9F);
    default:
      return letter;
  }
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (char& letter : upper) letter = UpperCase(letter);
  return upper;
}

char LowerCase(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  const bool plain = code >= 'A' && code <= 'Z';
  const bool accented =
      code >= 0xC0 && code <= 0xDE && code != 0xD7;  // D7 is the multiplication sign
  if (plain || accented) return static_cast<char>(code + 0x20);
  switch (code) {
    case 0x8A:  // S with caron
    case 0x8C:  // OE
    case 0x8E:  // Z with caron
      return static_cast<char>(code + 0x10);
    case 0x9F:  // Y with diaeresis
      return static_cast<char>(0xFF);
    default:
      return letter;
  }
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) letter = LowerCase(letter);
  return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return CompareIgnoringCase(a, b) == 0;
}

int CompareIgnoringCase(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    const auto left = static_cast<unsigned char>(UpperCase(a[i]));
    const auto right = static_cast<unsigned char>(UpperCase(b[i]));
    if (left != right) return left < right ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string{} : TrimRight(text.substr(first));
}

std::string TrimRight(std::string_view text) {
  // Stored fields are mostly blanks; these go faster in one piece.
  constexpr std::string_view kEightBlanks = "        ";
  while (text.ends_with(kEightBlanks)) text.remove_suffix(kEightBlanks.size());
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string_view Left(std::string_view text, std::size_t count) { return text.substr(0, count); }

std::string_view Right(std::string_view text, std::size_t count) {
  return text.substr(text.size() - std::min(count, text.size()));
}

}  // namespace tarnwell::text
