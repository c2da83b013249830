// Letters without regard to capitals, cuts and trims, all on code page 1252.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwell::text {

// The capital of a letter of code page 1252, accented ones too; any other character as it is.
char UpperCase(char letter);
std::string UpperCase(std::string_view text);

// And the small letter.
char LowerCase(char letter);
std::string LowerCase(std::string_view text);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

inline constexpr bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }
inline constexpr bool IsAsciiLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Below 0, 0 or above 0, by the upper-cased characters' codes: the order of a sorted list.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// Trims take away blanks (code 32) only.
std::string Trim(std::string_view text);
std::string TrimRight(std::string_view text);

// The first or last `count` characters, or the whole text if it is shorter.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);

}  // namespace tarnwell::text
