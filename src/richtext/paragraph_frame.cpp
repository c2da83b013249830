#include "richtext/paragraph_frame.h"

#include <algorithm>

#include "richtext/kept_pieces.h"

namespace tarnwell::richtext {
namespace {

constexpr int kMostDistance = 1440;
constexpr int kMostWidth = 120;

class FrameReader {
 public:
  explicit FrameReader(const std::vector<std::optional<Color>>& colors) : colors_(colors) {}

  ParagraphFrame Read(std::string_view words) && {
    for (const KeptPiece& word : KeptPieces(words)) Take(word);
    if (ground_ || shading_ > 0) frame_.fill = Shaded(shading_, ink_, ground_);
    std::vector<ParagraphFrame::Side*> sides = All();
    sides.push_back(&frame_.between);
    for (ParagraphFrame::Side* const side : sides) {
      const std::string& style = side->border.style;
      if (style.empty() || style == "brdrnone" || style == "brdrnil") *side = {};
    }
    return std::move(frame_);
  }

 private:
  std::vector<ParagraphFrame::Side*> All() {
    return {&frame_.top, &frame_.left, &frame_.bottom, &frame_.right};
  }

  void Take(const KeptPiece& word) {
    const std::string_view name = word.name;
    if (name == "box") open_ = All();
    if (name == "brdrt") open_ = {&frame_.top};
    if (name == "brdrl") open_ = {&frame_.left};
    if (name == "brdrb") open_ = {&frame_.bottom};
    if (name == "brdrr") open_ = {&frame_.right};
    if (name == "brdrbtw") open_ = {&frame_.between};
    if (name == "brdrbar") open_.clear();
    if (name == "cbpat") ground_ = ColorAt(word.number);
    if (name == "cfpat") ink_ = ColorAt(word.number);
    if (name == "shading") shading_ = std::clamp(word.number, 0, 10'000);
    for (ParagraphFrame::Side* const side : open_) TakeBorder(word, *side);
  }

  void TakeBorder(const KeptPiece& word, ParagraphFrame::Side& side) const {
    const std::string_view name = word.name;
    if (name == "brsp") side.distance = std::clamp(word.number, 0, kMostDistance);
    if (name == "brdrw") side.border.width = std::clamp(word.number, 0, kMostWidth);
    if (name == "brdrcf") side.border.color = ColorAt(word.number);
    const bool is_style = name.starts_with("brdr") && !word.has_number && name.size() > 5;
    if (is_style || name == "brdrs") side.border.style = name;
  }

  std::optional<Color> ColorAt(int number) const {
    if (number < 0 || static_cast<std::size_t>(number) >= colors_.size()) return std::nullopt;
    return colors_[static_cast<std::size_t>(number)];
  }

  const std::vector<std::optional<Color>>& colors_;
  ParagraphFrame frame_;
  std::vector<ParagraphFrame::Side*> open_;  // whose border is being read
  std::optional<Color> ground_;
  std::optional<Color> ink_;
  int shading_ = 0;
};

}  // namespace

Color Shaded(int shading, std::optional<Color> ink, std::optional<Color> ground) {
  const Color top = ink.value_or(Color{});
  const Color below = ground.value_or(Color{255, 255, 255});
  const auto mixed = [shading](int above, int under) {
    return static_cast<std::uint8_t>(under + (above - under) * shading / 10'000);
  };
  return {mixed(top.red, below.red), mixed(top.green, below.green), mixed(top.blue, below.blue)};
}

ParagraphFrame FrameOf(const ParagraphFormat& format,
                       const std::vector<std::optional<Color>>& colors) {
  if (format.other.find("\\brdr") == std::string::npos &&
      format.other.find("pat") == std::string::npos &&
      format.other.find("\\shading") == std::string::npos) {
    return {};
  }
  return FrameReader(colors).Read(format.other);
}

}  // namespace tarnwell::richtext
