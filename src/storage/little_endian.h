// Numbers as the bytes of a file, least byte first, whatever the machine's own order.

#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwell::storage {

inline constexpr std::size_t kLongestText = 65535;  // what a 2-byte length can say

template <typename Number>
void AppendNumber(std::string& bytes, Number value) {
  auto raw = std::bit_cast<std::array<char, sizeof(Number)>>(value);
  if constexpr (std::endian::native == std::endian::big) std::reverse(raw.begin(), raw.end());
  bytes.append(raw.begin(), raw.end());
}

// Takes a number from the front of `rest`, none if there are too few bytes.
template <typename Number>
std::optional<Number> TakeNumber(std::string_view& rest) {
  std::array<char, sizeof(Number)> raw;
  if (rest.size() < raw.size()) return std::nullopt;
  std::copy_n(rest.begin(), raw.size(), raw.begin());
  rest.remove_prefix(raw.size());
  if constexpr (std::endian::native == std::endian::big) std::reverse(raw.begin(), raw.end());
  return std::bit_cast<Number>(raw);
}

// A 2-byte length and the text, which is cut at kLongestText.
inline void AppendText(std::string& bytes, std::string_view text) {
  text = text.substr(0, kLongestText);
  AppendNumber(bytes, static_cast<std::uint16_t>(text.size()));
  bytes += text;
}

// Takes a text that AppendText wrote, none if it isn't whole.
inline std::optional<std::string> TakeText(std::string_view& rest) {
  const auto length = TakeNumber<std::uint16_t>(rest);
  if (!length || *length > rest.size()) return std::nullopt;
  std::string text(rest.substr(0, *length));
  rest.remove_prefix(*length);
  return text;
}

}  // namespace tarnwell::storage
