#include "text/code_page_1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "text/nearest_form.h"

namespace tarnwell::text {
namespace {

constexpr unsigned char kFirstSpecial = 0x80;
constexpr unsigned char kLastSpecial = 0x9F;

// Characters 80 to 9F. All others have the number of their Unicode character.
constexpr std::array<char32_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t UnicodeOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= kFirstSpecial && code <= kLastSpecial ? kSpecials[code - kFirstSpecial] : code;
}

void AppendCodePage(char32_t character, std::string& out) {
  if (character < kFirstSpecial || (character > kLastSpecial && character <= 0xFF)) {
    out += static_cast<char>(character);
    return;
  }
  const auto* const special = std::find(kSpecials.begin(), kSpecials.end(), character);
  if (special != kSpecials.end()) {
    out += static_cast<char>(kFirstSpecial + (special - kSpecials.begin()));
  } else {
    out += NearestForm(character);
  }
}

// The lead byte of a UTF-8 sequence: how many bytes follow, its own share of the character, and
// the range of the second byte that leaves out overlong forms, surrogates and what is past 10FFFF.
struct Lead {
  std::size_t followers;
  char32_t bits;
  unsigned char second_low = 0x80;
  unsigned char second_high = 0xBF;
};

std::optional<Lead> LeadOf(unsigned char byte) {
  if (byte < 0x80) return Lead{0, byte};
  if (byte >= 0xC2 && byte <= 0xDF) return Lead{1, byte & 0x1Fu};
  if (byte == 0xE0) return Lead{2, 0, 0xA0, 0xBF};
  if (byte == 0xED) return Lead{2, 0xD, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return Lead{2, byte & 0x0Fu};
  if (byte == 0xF0) return Lead{3, 0, 0x90, 0xBF};
  if (byte == 0xF4) return Lead{3, 4, 0x80, 0x8F};
  if (byte >= 0xF1 && byte <= 0xF3) return Lead{3, byte & 0x07u};
  return std::nullopt;
}

// Takes one character off the front of `rest`, which isn't empty. Bytes that begin a sequence and
// break off are taken together; a byte that can't stand where it does is left for the next call.
std::optional<char32_t> TakeCharacter(std::string_view& rest) {
  const std::optional<Lead> lead = LeadOf(static_cast<unsigned char>(rest.front()));
  rest.remove_prefix(1);
  if (!lead) return std::nullopt;
  char32_t character = lead->bits;
  unsigned char low = lead->second_low;
  unsigned char high = lead->second_high;
  for (std::size_t i = 0; i < lead->followers; ++i) {
    if (rest.empty()) return std::nullopt;
    const auto byte = static_cast<unsigned char>(rest.front());
    if (byte < low || byte > high) return std::nullopt;
    character = (character << 6) | (byte & 0x3Fu);
    rest.remove_prefix(1);
    low = 0x80;
    high = 0xBF;
  }
  return character;
}

}  // namespace

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char byte : text) {
    const char32_t character = UnicodeOf(byte);
    if (character < 0x80) {
      utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
      utf8 += static_cast<char>(0xC0 | (character >> 6));
      utf8 += static_cast<char>(0x80 | (character & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | (character >> 12));
      utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
      utf8 += static_cast<char>(0x80 | (character & 0x3F));
    }
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    if (const std::optional<char32_t> character = TakeCharacter(utf8)) {
      AppendCodePage(*character, text);
    } else {
      text += '?';
    }
  }
  return text;
}

}  // namespace tarnwell::text
