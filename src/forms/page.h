// Printed pages as plain data: what stands where. Positions and sizes are in twips, 1440 an inch,
// from the left top corner of the sheet.

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "forms/chart_picture.h"
#include "forms/color.h"

namespace tarnwell::forms {

inline constexpr int kTwipsPerInch = 1440;

struct Font {
  std::string name = "Times New Roman";
  double size = 10;  // points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  Color color = kBlack;

  friend bool operator==(const Font&, const Font&) = default;
};

// Some of a font: what all letters of a selection have in common, or what a person chose.
struct FontParts {
  FontParts() = default;
  FontParts(const Font& font)
      : name(font.name),
        size(font.size),
        bold(font.bold),
        italic(font.italic),
        underline(font.underline),
        strike(font.strike),
        color(font.color) {}

  std::optional<std::string> name;
  std::optional<double> size;  // points
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strike;
  std::optional<Color> color;

  friend bool operator==(const FontParts&, const FontParts&) = default;
};

inline Font WithParts(const Font& font, const FontParts& parts) {
  return {.name = parts.name.value_or(font.name),
          .size = parts.size.value_or(font.size),
          .bold = parts.bold.value_or(font.bold),
          .italic = parts.italic.value_or(font.italic),
          .underline = parts.underline.value_or(font.underline),
          .strike = parts.strike.value_or(font.strike),
          .color = parts.color.value_or(font.color)};
}

struct Margins {
  int left = 100;
  int top = 100;
  int right = 100;
  int bottom = 100;

  friend bool operator==(const Margins&, const Margins&) = default;
};

// The sheet of paper. Letter, upright, unless the page-setup dialogue says otherwise.
struct PageSetup {
  int paper_width = 12240;   // of the sheet held upright
  int paper_height = 15840;  // likewise
  bool landscape = false;
  Margins margins;

  int width() const { return landscape ? paper_height : paper_width; }
  int height() const { return landscape ? paper_width : paper_height; }

  friend bool operator==(const PageSetup&, const PageSetup&) = default;
};

// One line of text, or a part of one; (x, y) is its left top corner.
struct PlacedText {
  int x = 0;
  int y = 0;
  int font = 0;  // place in Document::fonts
  std::string text;
  bool utf8 = false;     // else it is in code page 1252
  bool goes_on = false;  // stands on the line of the text before it, with no gap between them
  float stretch = 0;     // twips that each blank is wider than the font makes it

  friend bool operator==(const PlacedText&, const PlacedText&) = default;
};

struct PlacedLine {
  enum class Pattern { kSolid, kDots, kDashes, kDashDot, kDashDotDot, kWave };
  int x1 = 0;
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  Color color = kBlack;
  int width = 10;
  Pattern pattern = Pattern::kSolid;

  friend bool operator==(const PlacedLine&, const PlacedLine&) = default;
};

struct PlacedBox {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::optional<Color> edge = kBlack;
  std::optional<Color> fill;

  friend bool operator==(const PlacedBox&, const PlacedBox&) = default;
};

// A picture from anywhere on the machine, as large as its own proportions allow, in the middle of
// the box. It is read each time its page is drawn, no larger than it is seen there, so that pages
// of many pictures hold none. One that can't be read leaves the box empty.
struct PlacedPicture {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::string path;  // absolute, in code page 1252

  friend bool operator==(const PlacedPicture&, const PlacedPicture&) = default;
};

// A picture in hand, which fills the box. Pages and previews share its bytes.
struct PlacedImage {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::shared_ptr<const std::string> bytes;  // of a PNG or JPEG file

  friend bool operator==(const PlacedImage&, const PlacedImage&) = default;
};

// A chart, drawn in lines and letters, so that it is as sharp as its paper.
struct PlacedChart {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::shared_ptr<const ChartPicture> picture;

  friend bool operator==(const PlacedChart&, const PlacedChart&) = default;
};

// What is listed later lies above what is listed before.
using Mark =
    std::variant<PlacedText, PlacedLine, PlacedBox, PlacedPicture, PlacedImage, PlacedChart>;
using Page = std::vector<Mark>;

struct Document {
  PageSetup setup;
  std::vector<Font> fonts;
  std::vector<Page> pages;
  std::vector<PageSetup> setups;  // of the first pages, where they aren't all on the same paper
  std::string title;              // in code page 1252; empty: none

  const PageSetup& SetupOf(std::size_t page) const {
    return page < setups.size() ? setups[page] : setup;
  }
};

}  // namespace tarnwell::forms
