#include "text/code_page_1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

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

}  // namespace

Utf8 ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char byte : text) AppendUtf8(UnicodeOf(byte), utf8);
  return Utf8(utf8);
}

std::string FromUtf8(const Utf8& utf8) {
  std::string text;
  text.reserve(utf8.bytes().size());
  for (std::string_view rest = utf8.bytes(); !rest.empty();) AppendCodePage(TakeUtf8(rest), text);
  return text;
}

}  // namespace tarnwell::text
