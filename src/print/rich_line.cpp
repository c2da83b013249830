#include "print/rich_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnwell::print {
namespace {

using Leader = richtext::TabStop::Leader;

constexpr double kUnderlineDepth = 0.1;  // below the base, of the ascent
constexpr int kThinLine = 10;
constexpr int kThickLine = 30;

int Rounded(double twips) { return static_cast<int>(std::lround(twips)); }

// The sign that a leader repeats; empty for one that is drawn.
std::string_view SignOf(Leader leader) {
  switch (leader) {
    case Leader::kDots:
      return ".";
    case Leader::kMiddleDots:
      return "\u00B7";
    case Leader::kHyphens:
      return "-";
    case Leader::kEquals:
      return "=";
    default:
      return "";
  }
}

class LinePlacer {
 public:
  LinePlacer(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y)
      : engine_(engine), styles_(styles), line_(line), left_(x), y_(y) {}

  void Place() {
    for (const int bar : line_.bars) {
      engine_.Add(forms::PlacedLine{left_ + bar, y_, left_ + bar, y_ + line_.height});
    }
    PlaceHighlights();
    x_ = left_ + line_.left;
    for (const LinePiece& piece : line_.pieces) {
      if (piece.kind == LinePiece::Kind::kText) PlaceText(piece);
      if (piece.kind == LinePiece::Kind::kTab) PlaceTab(piece);
      if (piece.kind == LinePiece::Kind::kPicture) PlacePicture(piece);
      x_ += piece.width;
    }
  }

 private:
  int Base() const { return y_ + line_.base; }

  // Below all letters of the line.
  void PlaceHighlights() {
    x_ = left_ + line_.left;
    for (const LinePiece& piece : line_.pieces) {
      const RichStyle& style = styles_.at(piece.style);
      if (style.highlight && piece.width > 0) {
        const int x = Rounded(x_);
        engine_.Add(forms::PlacedBox{x, Base() - style.ascent, Rounded(x_ + piece.width) - x,
                                     style.ascent + style.descent, std::nullopt, style.highlight});
      }
      x_ += piece.width;
    }
  }

  void PlaceText(const LinePiece& piece) {
    const RichStyle& style = styles_.at(piece.style);
    engine_.Add(forms::PlacedText{Rounded(x_), Base() - style.ascent, style.place, piece.text, true,
                                  std::exchange(goes_on_, true),
                                  static_cast<float>(piece.stretch)});
  }

  void PlaceTab(const LinePiece& tab) {
    goes_on_ = false;
    const RichStyle& style = styles_.at(tab.style);
    const int depth = std::max(Rounded(style.ascent * kUnderlineDepth), kThinLine);
    if (style.font.underline) PlaceLine(tab, depth, kThinLine);
    if (tab.leader == Leader::kLine) PlaceLine(tab, depth, kThinLine);
    if (tab.leader == Leader::kThick) PlaceLine(tab, depth, kThickLine);
    PlaceLeader(tab, SignOf(tab.leader));
  }

  void PlaceLine(const LinePiece& tab, int depth, int width) {
    if (tab.width < 1) return;
    const int y = Base() + depth;
    engine_.Add(forms::PlacedLine{Rounded(x_), y, Rounded(x_ + tab.width), y,
                                  styles_.at(tab.style).font.color, width});
  }

  // The signs stand at multiples of their width, so that they form columns over several lines.
  void PlaceLeader(const LinePiece& tab, std::string_view sign) {
    const double width = sign.empty() ? 0 : styles_.Width(tab.style, sign);
    if (width <= 0) return;
    const double first = std::ceil((x_ - left_) / width);
    const double last = std::floor((x_ - left_ + tab.width) / width);
    if (last <= first) return;
    const RichStyle& style = styles_.at(tab.style);
    std::string signs;
    for (double i = first; i < last; ++i) signs += sign;
    engine_.Add(forms::PlacedText{Rounded(left_ + first * width), Base() - style.ascent,
                                  style.place, std::move(signs), true});
  }

  void PlacePicture(const LinePiece& piece) {
    engine_.Add(forms::PlacedImage{Rounded(x_), Base() - piece.height, Rounded(piece.width),
                                   piece.height, piece.picture});
  }

  PageEngine& engine_;
  RichStyles& styles_;
  const RichLine& line_;
  const int left_;
  const int y_;
  double x_ = 0;
  bool goes_on_ = false;  // the next text stands right behind another
};

}  // namespace

void PlaceLine(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y) {
  LinePlacer(engine, styles, line, x, y).Place();
}

}  // namespace tarnwell::print
