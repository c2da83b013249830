// The fonts of printed pages.

#pragma once

#include <QFont>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/pages.h"

namespace tarnwell::desktop {

// At its size in points, as a sample on the screen.
QFont ScreenFont(const forms::Font& font);

// For a painter whose unit is a twip. Letters stand side by side without kerning or hinting, so
// that a text is as wide as the sum of its letters, on any device and at any scale.
QFont PageFont(const forms::Font& font);

// Measures page fonts in twips, so pages break at the same places whatever the screen or printer.
class PageMetrics : public forms::TextMetrics {
 public:
  int Width(const forms::Font& font, std::string_view text) override;
  double Utf8Width(const forms::Font& font, std::string_view utf8) override;
  int LineHeight(const forms::Font& font) override;
  int Ascent(const forms::Font& font) override;

 private:
  struct Measures {
    std::vector<double> advances;                 // by the character in code page 1252, once asked
    std::unordered_map<char16_t, double> others;  // by the character in Unicode
    int line_height = 0;
    int ascent = 0;
  };
  struct Known {
    forms::Font font;
    std::unique_ptr<Measures> measures;
  };
  Measures& MeasuresOf(const forms::Font& font);
  const std::vector<double>& AdvancesOf(const forms::Font& font);

  std::vector<Known> known_;  // the last one used is first
};

}  // namespace tarnwell::desktop
