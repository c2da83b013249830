#include "richtext/capitals.h"

#include "richtext/kept_words.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

char32_t CapitalOf(char32_t c) {
  const auto between = [c](char32_t first, char32_t last) { return c >= first && c <= last; };
  if (between('a', 'z')) return c - 32;
  if (c == 0xFF) return 0x178;
  if (between(0xE0, 0xFE) && c != 0xF7) return c - 32;
  // Capital and small letters take turns.
  if (between(0x100, 0x137) && c != 0x131) return c & ~char32_t{1};
  if (between(0x139, 0x148) || between(0x179, 0x17E)) return c % 2 == 0 ? c - 1 : c;
  if (between(0x14A, 0x177)) return c & ~char32_t{1};
  if (c == 0x3C2) return 0x3A3;
  if (between(0x3B1, 0x3C9)) return c - 32;
  if (between(0x430, 0x44F)) return c - 32;
  if (between(0x450, 0x45F)) return c - 80;
  return c;
}

}  // namespace

CapitalLetters CapitalsOf(const CharacterFormat& format) {
  const std::string& other = format.other;
  if (other.find("caps") == std::string::npos) return CapitalLetters::kNone;
  const auto is_on = [&other](std::string_view word) {
    return HoldsKept(word, other) &&
           other.find("\\" + std::string(word) + "0") == std::string::npos;
  };
  if (is_on("scaps")) return CapitalLetters::kSmall;
  return is_on("caps") ? CapitalLetters::kAll : CapitalLetters::kNone;
}

std::vector<CapitalPart> SmallCapitals(std::string_view utf8) {
  std::vector<CapitalPart> parts;
  while (!utf8.empty()) {
    const char32_t letter = text::TakeUtf8(utf8);
    const char32_t capital = CapitalOf(letter);
    const bool is_small = capital != letter;
    if (parts.empty() || parts.back().is_small != is_small) parts.push_back({{}, is_small});
    text::AppendUtf8(capital, parts.back().text);
  }
  return parts;
}

std::string Capitals(std::string_view utf8) {
  std::string all;
  all.reserve(utf8.size());
  while (!utf8.empty()) text::AppendUtf8(CapitalOf(text::TakeUtf8(utf8)), all);
  return all;
}

}  // namespace tarnwell::richtext
