// Lays out pages: text at a position or line by line, down a column, from column to column and from
// page to page.

#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "forms/pages.h"

namespace tarnwell::print {

enum class Align { kLeft, kRight, kCenter };

// Positions are twips from the left top corner of the sheet. Between Start and End there is always
// a page in hand.
class PageEngine {
 public:
  explicit PageEngine(forms::TextMetrics& metrics) : metrics_(metrics) {}

  // Drops the earlier document, and begins the first page in one column.
  void Start(const forms::PageSetup& setup, const forms::Font& font);
  // Drops the document and stays without pages.
  void Clear() { document_ = {}; }
  const forms::Document& document() const { return document_; }
  void SetTitle(std::string title) { document_.title = std::move(title); }
  int page_count() const { return static_cast<int>(document_.pages.size()); }

  // Runs at the head of each page, the first one too. The font is put back behind it; the columns
  // begin where it leaves the position. Nothing in it begins another page.
  std::function<void()> on_new_page;

  const forms::Font& font() const { return font_; }
  void SetFont(const forms::Font& font);
  int TextWidth(std::string_view text) { return metrics_.Width(font_, text); }
  int LineHeight() { return metrics_.LineHeight(font_); }
  forms::TextMetrics& metrics() { return metrics_; }

  // Asked at the head of each page that begins from now on: its paper and margins. The page in hand
  // gets its own anew while nothing stands on it. Without a function the setup of Start holds.
  void SetPaper(std::function<forms::PageSetup()> paper);
  const forms::PageSetup& paper() const { return paper_; }
  int page_width() const { return paper_.width(); }
  int page_height() const { return paper_.height(); }
  int top() const { return paper_.margins.top; }
  int bottom() const {
    const int bottom = page_height() - paper_.margins.bottom - reserved_;
    return column_ + 1 < columns_ ? std::min(bottom, column_limit_) : bottom;
  }
  // Keeps so much more free at the foot of the column in hand.
  void Reserve(int height) { reserved_ += height; }
  // The height of a column that has a page to itself.
  int column_height() const { return bottom() - column_top_; }
  // The edges of the column in hand; a page's head has one column.
  int left() const;
  int right() const { return left() + ColumnWidth(); }
  int ColumnWidth() const;

  // Where the next line goes.
  int y() const { return y_; }
  void MoveTo(int y) { Skip(y - y_); }
  void Skip(int height) {
    y_ += height;
    deepest_ = std::max(deepest_, y_);
  }
  // The lowest place that a column which began with this one has come to, on the page in hand.
  int deepest() const { return deepest_; }
  bool HasRoom(int height) const { return y_ + height <= bottom(); }

  // Columns from the present position on, and from the head of later pages.
  void SetColumns(int count, int gap);
  int columns() const { return columns_; }
  // Columns that begin at the present position end `height` below it, on this page; the last one
  // goes on as far as it must.
  void LimitColumns(int height) { column_limit_ = column_top_ + height; }
  // Nothing stands in the column in hand yet.
  bool at_column_top() const { return y_ <= column_top_; }
  // The next column, or the first one of a new page.
  void NextColumn();
  void NewPage();
  // Runs `draw` with another page in hand, in one column; the position comes back behind it.
  // Nothing in it begins another page.
  void OnPage(int page, const std::function<void()>& draw);

  // Anywhere on the page in hand: x is the text's left edge, right edge or middle.
  void TextAt(int x, int y, std::string_view text, Align align = Align::kLeft);
  // One line in the column in hand, after a break where there is no room.
  void Line(std::string_view text, Align align = Align::kLeft);
  // As many lines as it takes.
  void Paragraph(std::string_view text, Align align = Align::kLeft);
  void Add(forms::Mark mark);
  // The place of `font` in the document's fonts, for marks.
  int PlaceOf(const forms::Font& font);

 private:
  static constexpr int kNoLimit = std::numeric_limits<int>::max();

  int FontIndex();

  void TakePaper();

  forms::TextMetrics& metrics_;
  forms::Document document_;
  std::function<forms::PageSetup()> next_paper_;
  forms::PageSetup paper_;  // of the page in hand
  std::size_t page_ = 0;    // in hand
  int reserved_ = 0;
  int deepest_ = 0;
  int column_limit_ = kNoLimit;
  forms::Font font_;
  int font_index_ = -1;
  int y_ = 0;
  int columns_ = 1;
  int gap_ = 0;
  int column_ = 0;
  int column_top_ = 0;
  bool in_head_ = false;
};

}  // namespace tarnwell::print
