#include "print/rich_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnwell::print {
namespace {

using Leader = richtext::TabStop::Leader;
using Pattern = forms::PlacedLine::Pattern;
using richtext::Underline;

constexpr double kUnderlineDepth = 0.1;  // below the base, of the ascent
constexpr int kThinLine = 10;
constexpr int kThickLine = 30;
constexpr int kHeavyLine = 20;  // of an underline
constexpr int kThickest = 120;  // of a border

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

struct UnderlineLook {
  Pattern pattern = Pattern::kSolid;
  int width = kThinLine;
  int lines = 1;
};

UnderlineLook LookOf(Underline underline) {
  switch (underline) {
    case Underline::kDouble:
      return {.lines = 2};
    case Underline::kDotted:
      return {Pattern::kDots};
    case Underline::kDash:
    case Underline::kLongDash:
      return {Pattern::kDashes};
    case Underline::kDashDot:
      return {Pattern::kDashDot};
    case Underline::kDashDotDot:
      return {Pattern::kDashDotDot};
    case Underline::kWave:
      return {Pattern::kWave};
    case Underline::kDoubleWave:
      return {Pattern::kWave, kThinLine, 2};
    case Underline::kHeavyWave:
      return {Pattern::kWave, kHeavyLine};
    case Underline::kThick:
      return {Pattern::kSolid, kHeavyLine};
    case Underline::kThickDotted:
      return {Pattern::kDots, kHeavyLine};
    case Underline::kThickDash:
    case Underline::kThickLongDash:
      return {Pattern::kDashes, kHeavyLine};
    case Underline::kThickDashDot:
      return {Pattern::kDashDot, kHeavyLine};
    case Underline::kThickDashDotDot:
      return {Pattern::kDashDotDot, kHeavyLine};
    default:
      return {};
  }
}

class LinePlacer {
 public:
  LinePlacer(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y)
      : engine_(engine), styles_(styles), line_(line), left_(x), y_(y) {}

  void Place() {
    if (line_.frame) PlaceFrame(*line_.frame);
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
    if (!style.font.underline) PlaceUnderline(piece);
  }

  // Those that no font draws by itself.
  void PlaceUnderline(const LinePiece& piece) {
    const RichStyle& style = styles_.at(piece.style);
    if (style.underline == Underline::kNone) return;
    const UnderlineLook look = LookOf(style.underline);
    const int depth = std::max(Rounded(style.ascent * kUnderlineDepth), kThinLine);
    const auto place = [&](double from, double to) {
      for (int i = 0; i < look.lines; ++i) {
        const int y = Base() + depth + i * (kThinLine + look.width);
        if (to - from >= 1) {
          engine_.Add(forms::PlacedLine{Rounded(from), y, Rounded(to), y, style.font.color,
                                        look.width, look.pattern});
        }
      }
    };
    if (style.underline != Underline::kWords) return place(x_, x_ + piece.width);
    double x = x_;
    std::string_view rest = piece.text;
    while (!rest.empty()) {
      const std::string_view word = rest.substr(0, rest.find(' '));
      const double end = x + styles_.Width(piece.style, word);
      place(x, end);
      rest.remove_prefix(word.size());
      const std::size_t blanks = std::min(rest.find_first_not_of(' '), rest.size());
      x = end + styles_.Width(piece.style, rest.substr(0, blanks)) +
          piece.stretch * static_cast<double>(blanks);
      rest.remove_prefix(blanks);
    }
  }

  void PlaceFrame(const RichFrame& frame) {
    const richtext::ParagraphFrame& sides = frame.sides;
    const int left = left_ + frame.left - sides.left.distance;
    const int right = left_ + frame.right + sides.right.distance;
    const int top = y_ - line_.frame_above;
    const int bottom = y_ + line_.height;
    if (sides.fill) {
      engine_.Add(forms::PlacedBox{left, top, right - left, bottom - top, std::nullopt,
                                   ToPageColor(*sides.fill)});
    }
    PlaceBorder(engine_, sides.left.border, {left, top, left, bottom});
    PlaceBorder(engine_, sides.right.border, {right, top, right, bottom});
    if (line_.begins_frame) PlaceBorder(engine_, sides.top.border, {left, top, right, top});
    if (line_.ends_frame) PlaceBorder(engine_, sides.bottom.border, {left, bottom, right, bottom});
    if (line_.goes_on_with_frame) {
      PlaceBorder(engine_, sides.between.border, {left, y_, right, y_});
    }
  }

  void PlaceTab(const LinePiece& tab) {
    goes_on_ = false;
    const RichStyle& style = styles_.at(tab.style);
    const int depth = std::max(Rounded(style.ascent * kUnderlineDepth), kThinLine);
    if (style.font.underline) PlaceLine(tab, depth, kThinLine);
    if (!style.font.underline && style.underline != Underline::kWords) PlaceUnderline(tab);
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

void PlaceBorder(PageEngine& engine, const richtext::Border& border, forms::PlacedLine line) {
  if (border.style.empty() || border.style == "brdrnone" || border.style == "brdrnil") return;
  if (border.color) line.color = ToPageColor(*border.color);
  if (border.width > 0) line.width = std::min(border.width, kThickest);
  engine.Add(line);
}

void PlaceLine(PageEngine& engine, RichStyles& styles, const RichLine& line, int x, int y) {
  LinePlacer(engine, styles, line, x, y).Place();
}

}  // namespace tarnwell::print
