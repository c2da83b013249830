#include "print/rich_cell.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "print/paragraph_lines.h"
#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

constexpr int kLeastText = 200;  // twips of a cell's text, however narrow the cell
constexpr int kThickest = 120;   // twips of a border

void PlaceBorder(PageEngine& engine, const richtext::Border& border, forms::PlacedLine line) {
  if (border.style.empty() || border.style == "brdrnone" || border.style == "brdrnil") return;
  if (border.color) line.color = ToPageColor(*border.color);
  if (border.width > 0) line.width = std::min(border.width, kThickest);
  engine.Add(line);
}

}  // namespace

void RichCell::LayOut(RichStyles& styles, int most_height) {
  const RichRoom room{std::max(right_ - left_ - 2 * half_gap_, kLeastText), most_height};
  for (const richtext::Paragraph& paragraph : cell_.paragraphs) {
    int gap = last_gap_ + paragraph.format.space_before;
    ParagraphLines lines(paragraph, styles, room);
    for (CellLine line; lines.Next(line.line); line = {}) {
      line.gap = std::exchange(gap, 0);
      lines_.push_back(std::move(line));
    }
    last_gap_ = gap + paragraph.format.space_after;
  }
}

int RichCell::HeightLeft() const { return HeightOf(lines_.size() - next_) + last_gap_; }

std::size_t RichCell::FittingLines(int room) const {
  std::size_t i = next_;
  while (i < lines_.size()) {
    room -= lines_[i].gap + lines_[i].line.height;
    if (room < 0) break;
    ++i;
  }
  return i - next_;
}

int RichCell::HeightOf(std::size_t count) const {
  int height = 0;
  for (std::size_t i = next_; i < next_ + count; ++i) {
    height += lines_[i].gap + lines_[i].line.height;
  }
  return height;
}

int RichCell::TopInRow(int row_height) const {
  const int spare = std::max(row_height - HeightLeft(), 0);
  if (richtext::HoldsKept("clvertalc", cell_.other)) return spare / 2;
  return richtext::HoldsKept("clvertalb", cell_.other) ? spare : 0;
}

void RichCell::PlaceFill(PageEngine& engine, int top, int bottom) const {
  if (!cell_.fill) return;
  const int left = engine.left() + left_;
  engine.Add(forms::PlacedBox{left, top, right_ - left_, bottom - top, std::nullopt,
                              ToPageColor(*cell_.fill)});
}

void RichCell::PlaceNext(PageEngine& engine, RichStyles& styles, std::size_t count, int y) {
  for (const std::size_t end = next_ + count; next_ < end; ++next_) {
    const CellLine& line = lines_[next_];
    y += line.gap;
    PlaceLine(engine, styles, line.line, engine.left() + left_ + half_gap_, y);
    y += line.line.height;
  }
}

void RichCell::PlaceBorders(PageEngine& engine, int top, int bottom) const {
  const int left = engine.left() + left_;
  const int right = engine.left() + right_;
  PlaceBorder(engine, cell_.top, {left, top, right, top});
  PlaceBorder(engine, cell_.left, {left, top, left, bottom});
  PlaceBorder(engine, cell_.bottom, {left, bottom, right, bottom});
  PlaceBorder(engine, cell_.right, {right, top, right, bottom});
}

std::optional<int> NumberBehind(std::string_view word, std::string_view words) {
  for (std::size_t at = words.find(word); at != std::string_view::npos;
       at = words.find(word, at + 1)) {
    const std::string_view rest = words.substr(at + word.size());
    int number = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (error == std::errc()) return number;
  }
  return std::nullopt;
}

}  // namespace tarnwell::print
