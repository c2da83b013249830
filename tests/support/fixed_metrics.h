#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "forms/pages.h"

namespace tarnwell::testing {

// Every character is as wide as ten twips a point and every line as high as 24, 18 of them above
// the letters' base: at 10 points, 100 by 240 twips. Bold is a fifth wider.
class FixedMetrics : public forms::TextMetrics {
 public:
  int Width(const forms::Font& font, std::string_view text) override {
    return static_cast<int>(font.size * (font.bold ? 12 : 10)) * static_cast<int>(text.size());
  }
  double Utf8Width(const forms::Font& font, std::string_view utf8) override {
    const auto characters = std::ranges::count_if(
        utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
    return static_cast<int>(font.size * (font.bold ? 12 : 10)) * static_cast<double>(characters);
  }
  int LineHeight(const forms::Font& font) override { return static_cast<int>(font.size * 24); }
  int Ascent(const forms::Font& font) override { return static_cast<int>(font.size * 18); }
};

// All texts of a page in the order of their printing.
inline std::vector<std::string> TextsOf(const forms::Page& page) {
  std::vector<std::string> texts;
  for (const forms::Mark& mark : page) {
    if (const auto* text = std::get_if<forms::PlacedText>(&mark)) texts.push_back(text->text);
  }
  return texts;
}

}  // namespace tarnwell::testing
