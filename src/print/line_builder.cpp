#include "print/line_builder.h"

#include <algorithm>
#include <utility>

namespace tarnwell::print {
namespace {

using Kind = richtext::TabStop::Kind;

// Sums of widths aren't exact.
constexpr double kTolerance = 0.5;

}  // namespace

void LineBuilder::Start(double left, double right) {
  line_ = {};
  line_.left = left;
  right_ = right;
  blanks_.clear();
  blanks_width_ = 0;
  stop_ = {};
  tab_begin_ = left;
  segment_ = 0;
  segment_width_ = 0;
  has_point_ = false;
}

double LineBuilder::SegmentStart(double width) const {
  if (segment_ == 0) return tab_begin_;
  const double before_point = has_point_ ? width_before_point_ : width;
  const double stands_before = stop_.kind == Kind::kRight     ? width
                               : stop_.kind == Kind::kCenter  ? width / 2
                               : stop_.kind == Kind::kDecimal ? before_point
                                                              : 0;
  return std::max(tab_begin_, stop_.position - stands_before);
}

bool LineBuilder::HasRoom(double width) const {
  const double all = segment_width_ + blanks_width_ + width;
  return SegmentStart(all) + all <= right_ + kTolerance;
}

void LineBuilder::AddText(int style, std::string_view text, double width) {
  TakeBlanks();
  if (stop_.kind == Kind::kDecimal && !has_point_) {
    const std::size_t point = text.find('.');
    has_point_ = point != std::string_view::npos;
    if (has_point_) {
      width_before_point_ = segment_width_ + styles_.Width(style, text.substr(0, point));
    }
  }
  segment_width_ += width;
  auto& pieces = line_.pieces;
  if (pieces.size() > segment_ && pieces.back().kind == LinePiece::Kind::kText &&
      pieces.back().style == style) {
    pieces.back().text += text;
    pieces.back().width += width;
    return;
  }
  LinePiece piece;
  piece.style = style;
  piece.width = width;
  piece.text = text;
  pieces.push_back(std::move(piece));
}

void LineBuilder::AddBlanks(int style, std::string_view text, double width) {
  blanks_.push_back({style, text, width});
  blanks_width_ += width;
}

void LineBuilder::TakeBlanks() {
  const std::vector<Blanks> blanks = std::exchange(blanks_, {});
  blanks_width_ = 0;
  for (const Blanks& one : blanks) AddText(one.style, one.text, one.width);
}

void LineBuilder::AddPicture(LinePiece piece) {
  TakeBlanks();
  segment_width_ += piece.width;
  line_.pieces.push_back(std::move(piece));
}

void LineBuilder::AddTab(int style, const richtext::TabStop& stop) {
  TakeBlanks();
  EndSegment();
  LinePiece tab;
  tab.kind = LinePiece::Kind::kTab;
  tab.style = style;
  tab.leader = stop.leader;
  line_.pieces.push_back(tab);
  segment_ = line_.pieces.size();
  stop_ = stop;
  stop_.position = std::min(stop.position, static_cast<int>(right_));
}

// The tab before the segment takes the room that the segment leaves.
void LineBuilder::EndSegment() {
  const double start = SegmentStart(segment_width_);
  if (segment_ > 0) line_.pieces[segment_ - 1].width = start - tab_begin_;
  tab_begin_ = start + segment_width_;
  segment_width_ = 0;
  has_point_ = false;
}

// Underlined blanks are the lines of a form to be filled in.
void LineBuilder::KeepSeenBlanks() {
  const std::vector<Blanks> blanks = std::exchange(blanks_, {});
  blanks_width_ = 0;
  for (const Blanks& one : blanks) {
    const RichStyle& style = styles_.at(one.style);
    const bool is_underlined = style.underline != richtext::Underline::kNone &&
                               style.underline != richtext::Underline::kWords;
    if (!is_underlined && !style.font.strike && !style.highlight) return;
    const double blank = one.width / static_cast<double>(one.text.size());
    const double fitting = blank > 0 ? std::max(Room() / blank, 0.0) : 0;
    const auto count = std::min(one.text.size(), static_cast<std::size_t>(fitting));
    if (count > 0)
      AddText(one.style, one.text.substr(0, count), blank * static_cast<double>(count));
  }
}

void LineBuilder::Justify(double room) {
  std::ptrdiff_t blanks = 0;
  for (std::size_t i = segment_; i < line_.pieces.size(); ++i) {
    blanks += std::ranges::count(line_.pieces[i].text, ' ');
  }
  if (blanks == 0) return;
  const double stretch = room / static_cast<double>(blanks);
  for (std::size_t i = segment_; i < line_.pieces.size(); ++i) {
    LinePiece& piece = line_.pieces[i];
    const auto own = static_cast<double>(std::ranges::count(piece.text, ' '));
    if (own == 0) continue;
    piece.stretch = stretch;
    piece.width += stretch * own;
  }
}

RichLine LineBuilder::Finish(richtext::Alignment alignment, RichLine::End line_end) {
  KeepSeenBlanks();
  EndSegment();
  const double room = std::max(right_ - tab_begin_, 0.0);
  if (alignment == richtext::Alignment::kCenter) line_.left += room / 2;
  if (alignment == richtext::Alignment::kRight) line_.left += room;
  if (alignment == richtext::Alignment::kJustify && line_end == RichLine::End::kWrapped) {
    Justify(room);
  }
  line_.end = line_end;
  return std::move(line_);
}

}  // namespace tarnwell::print
