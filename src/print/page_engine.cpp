#include "print/page_engine.h"

#include <algorithm>

#include "print/text_wrap.h"

namespace tarnwell::print {

void PageEngine::Start(const forms::PageSetup& setup, const forms::Font& font) {
  document_ = {setup, {}, {}};
  columns_ = 1;
  gap_ = 0;
  SetFont(font);
  NewPage();
}

void PageEngine::SetFont(const forms::Font& font) {
  font_ = font;
  font_index_ = -1;
}

int PageEngine::PlaceOf(const forms::Font& font) {
  auto& fonts = document_.fonts;
  const auto known = std::ranges::find(fonts, font);
  const auto place = static_cast<int>(known - fonts.begin());
  if (known == fonts.end()) fonts.push_back(font);
  return place;
}

int PageEngine::FontIndex() {
  if (font_index_ < 0) font_index_ = PlaceOf(font_);
  return font_index_;
}

int PageEngine::ColumnWidth() const {
  const auto& margins = document_.setup.margins;
  const int area = page_width() - margins.left - margins.right;
  if (in_head_) return std::max(area, 1);
  return std::max((area - gap_ * (columns_ - 1)) / columns_, 1);
}

int PageEngine::left() const {
  return document_.setup.margins.left + column_ * (ColumnWidth() + gap_);
}

void PageEngine::SetColumns(int count, int gap) {
  columns_ = std::max(count, 1);
  gap_ = gap;
  column_ = 0;
  column_top_ = y_;
}

void PageEngine::NextColumn() {
  if (column_ + 1 >= columns_) return NewPage();
  ++column_;
  y_ = column_top_;
}

void PageEngine::NewPage() {
  if (in_head_) return;
  document_.pages.emplace_back();
  column_ = 0;
  y_ = top();
  if (on_new_page) {
    const forms::Font font = font_;
    in_head_ = true;
    on_new_page();
    in_head_ = false;
    SetFont(font);
  }
  column_top_ = y_;
}

void PageEngine::TextAt(int x, int y, std::string_view text, Align align) {
  if (align != Align::kLeft) {
    const int width = TextWidth(text);
    x -= align == Align::kRight ? width : width / 2;
  }
  if (document_.pages.empty()) return;
  document_.pages.back().emplace_back(forms::PlacedText{x, y, FontIndex(), std::string(text)});
}

void PageEngine::Line(std::string_view text, Align align) {
  const int height = LineHeight();
  // What doesn't fit on an empty column either stays where it is.
  if (!HasRoom(height) && !at_column_top()) NextColumn();
  const int x = align == Align::kLeft    ? left()
                : align == Align::kRight ? right()
                                         : (left() + right()) / 2;
  TextAt(x, y_, text, align);
  y_ += height;
}

void PageEngine::Paragraph(std::string_view text, Align align) {
  for (const auto& line : WrapText(metrics_, font_, text, ColumnWidth())) Line(line, align);
}

void PageEngine::Add(forms::Mark mark) {
  if (!document_.pages.empty()) document_.pages.back().push_back(std::move(mark));
}

}  // namespace tarnwell::print
