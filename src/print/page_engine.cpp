#include "print/page_engine.h"

#include <algorithm>

#include "print/text_wrap.h"

namespace tarnwell::print {

void PageEngine::Start(const forms::PageSetup& setup, const forms::Font& font) {
  document_ = {};
  document_.setup = setup;
  next_paper_ = nullptr;
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
  const auto& margins = paper_.margins;
  const int area = page_width() - margins.left - margins.right;
  if (in_head_) return std::max(area, 1);
  return std::max((area - gap_ * (columns_ - 1)) / columns_, 1);
}

int PageEngine::left() const { return paper_.margins.left + column_ * (ColumnWidth() + gap_); }

void PageEngine::SetColumns(int count, int gap) {
  columns_ = std::max(count, 1);
  gap_ = gap;
  column_ = 0;
  column_top_ = y_;
  deepest_ = y_;
  column_limit_ = kNoLimit;
}

void PageEngine::SetPaper(std::function<forms::PageSetup()> paper) {
  next_paper_ = std::move(paper);
  if (document_.pages.empty() || !document_.pages.back().empty()) return;
  document_.setups.pop_back();
  TakePaper();
  y_ = column_top_ = deepest_ = top();
}

void PageEngine::TakePaper() {
  paper_ = next_paper_ ? next_paper_() : document_.setup;
  document_.setups.push_back(paper_);
}

void PageEngine::NextColumn() {
  if (column_ + 1 >= columns_) return NewPage();
  ++column_;
  y_ = column_top_;
  reserved_ = 0;
}

void PageEngine::NewPage() {
  if (in_head_) return;
  document_.pages.emplace_back();
  page_ = document_.pages.size() - 1;
  TakePaper();
  column_ = 0;
  reserved_ = 0;
  column_limit_ = kNoLimit;
  y_ = top();
  if (on_new_page) {
    const forms::Font font = font_;
    in_head_ = true;
    on_new_page();
    in_head_ = false;
    SetFont(font);
  }
  column_top_ = deepest_ = y_;
}

void PageEngine::OnPage(int page, const std::function<void()>& draw) {
  if (page < 0 || page >= page_count()) return;
  const auto columns = std::exchange(columns_, 1);
  const auto column = std::exchange(column_, 0);
  const auto in_hand = std::exchange(page_, static_cast<std::size_t>(page));
  const auto paper = std::exchange(paper_, document_.SetupOf(page_));
  const auto reserved = std::exchange(reserved_, 0);
  const auto limit = std::exchange(column_limit_, kNoLimit);
  const auto in_head = std::exchange(in_head_, true);
  const int y = y_;
  const int deepest = deepest_;
  draw();
  y_ = y;
  deepest_ = deepest;
  in_head_ = in_head;
  reserved_ = reserved;
  column_limit_ = limit;
  paper_ = paper;
  page_ = in_hand;
  column_ = column;
  columns_ = columns;
}

void PageEngine::TextAt(int x, int y, std::string_view text, Align align) {
  if (align != Align::kLeft) {
    const int width = TextWidth(text);
    x -= align == Align::kRight ? width : width / 2;
  }
  if (document_.pages.empty()) return;
  document_.pages[page_].emplace_back(forms::PlacedText{x, y, FontIndex(), std::string(text)});
}

void PageEngine::Line(std::string_view text, Align align) {
  const int height = LineHeight();
  // What doesn't fit on an empty column either stays where it is.
  if (!HasRoom(height) && !at_column_top()) NextColumn();
  const int x = align == Align::kLeft    ? left()
                : align == Align::kRight ? right()
                                         : (left() + right()) / 2;
  TextAt(x, y_, text, align);
  Skip(height);
}

void PageEngine::Paragraph(std::string_view text, Align align) {
  for (const auto& line : WrapText(metrics_, font_, text, ColumnWidth())) Line(line, align);
}

void PageEngine::Add(forms::Mark mark) {
  if (!document_.pages.empty()) document_.pages[page_].push_back(std::move(mark));
}

}  // namespace tarnwell::print
