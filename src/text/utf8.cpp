#include "text/utf8.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace tarnwell::text {
namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

// The lead byte of a sequence: how many bytes follow, its own share of the character, and the range
// of the second byte that leaves out overlong forms, surrogates and what is past the last
// character.
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
  const std::optional<Lead> lead = LeadOf(static_cast<unsigned char>(rest.front()));
  rest.remove_prefix(1);
  if (!lead) return kReplacementCharacter;
  char32_t character = lead->bits;
  unsigned char low = lead->second_low;
  unsigned char high = lead->second_high;
  for (std::size_t i = 0; i < lead->followers; ++i) {
    if (rest.empty()) return kReplacementCharacter;
    const auto byte = static_cast<unsigned char>(rest.front());
    if (byte < low || byte > high) return kReplacementCharacter;
    character = (character << 6) | (byte & 0x3Fu);
    rest.remove_prefix(1);
    low = 0x80;
    high = 0xBF;
  }
  return character;
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

}  // namespace tarnwell::text
