#include "richtext/utf8.h"

#include <cstddef>
#include <utility>

namespace tarnwell::richtext {
namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

// How many bytes follow a lead byte, 4 for a byte that can't lead.
std::size_t Followers(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return 4;
}

// The least character that needs so many following bytes; a lower one is written overlong.
constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};

}  // namespace

void AppendUtf8(char32_t character, std::string& out) {
  if (character > kLastCharacter || IsSurrogate(character)) character = kReplacementCharacter;
  const auto follower = [&](int shift) {
    out += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
  };
  if (character < 0x80) {
    out += static_cast<char>(character);
  } else if (character < 0x800) {
    out += static_cast<char>(0xC0 | (character >> 6));
  } else if (character < 0x10000) {
    out += static_cast<char>(0xE0 | (character >> 12));
  } else {
    out += static_cast<char>(0xF0 | (character >> 18));
    follower(12);
  }
  if (character >= 0x800) follower(6);
  if (character >= 0x80) follower(0);
}

char32_t TakeUtf8(std::string_view& rest) {
  const auto lead = static_cast<unsigned char>(rest.front());
  const std::size_t followers = Followers(lead);
  if (followers == 0 || followers == 4 || rest.size() <= followers) {
    rest.remove_prefix(1);
    return followers == 0 ? lead : kReplacementCharacter;
  }
  char32_t character = lead & (0x3Fu >> followers);
  bool whole = true;
  for (std::size_t i = 1; i <= followers; ++i) {
    const auto byte = static_cast<unsigned char>(rest[i]);
    whole = whole && (byte & 0xC0) == 0x80;
    character = (character << 6) | (byte & 0x3Fu);
  }
  whole = whole && character >= kLeast[followers] && character <= kLastCharacter &&
          !IsSurrogate(character);
  rest.remove_prefix(whole ? followers + 1 : 1);
  return whole ? character : kReplacementCharacter;
}

std::size_t CharacterStart(std::string_view utf8, std::size_t size) {
  if (size >= utf8.size()) return utf8.size();
  while (size > 0 && (static_cast<unsigned char>(utf8[size]) & 0xC0) == 0x80) --size;
  return size;
}

void Utf16Joiner::Take(char16_t unit, std::string& utf8) {
  const bool is_low = unit >= 0xDC00 && unit <= 0xDFFF;
  if (is_low && high_ != 0) {
    const char32_t high = std::exchange(high_, u'\0');
    return AppendUtf8(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00), utf8);
  }
  Flush(utf8);
  if (unit >= 0xD800 && unit <= 0xDBFF) {
    high_ = unit;
  } else {
    AppendUtf8(unit, utf8);
  }
}

void Utf16Joiner::Flush(std::string& utf8) {
  if (std::exchange(high_, u'\0') != 0) AppendUtf8(kReplacementCharacter, utf8);
}

}  // namespace tarnwell::richtext
