#pragma once

#include <cstdint>
#include <optional>

namespace tarnwell::forms {

// 32 bits in blue-green-red order: red is the lowest byte.
using Color = std::int32_t;

inline constexpr Color kBlack = 0x000000;
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kPureBlue = 0xFF0000;
inline constexpr Color kYellow = 0x00FFFF;
// The neutral colour of labels and panels that "Default" stands for.
inline constexpr Color kNeutral = 0xF4F2F0;

// The colour of a stored number; empty for a number that is no colour.
inline std::optional<Color> ColorFromNumber(double number) {
  if (!(number >= kBlack && number <= kWhite)) return std::nullopt;
  return static_cast<Color>(number);
}

}  // namespace tarnwell::forms
