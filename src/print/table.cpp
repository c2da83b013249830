#include "print/table.h"

#include <algorithm>

#include "print/text_wrap.h"

namespace tarnwell::print {
namespace {

std::size_t LongestOf(const std::vector<std::vector<std::string>>& lines) {
  std::size_t longest = 1;
  for (const auto& cell : lines) longest = std::max(longest, cell.size());
  return longest;
}

}  // namespace

Table::Table(PageEngine& engine, std::vector<TableColumn> columns, TableLines lines)
    : engine_(engine), columns_(std::move(columns)), lines_(lines) {}

int Table::Width() const {
  int width = 0;
  for (const TableColumn& column : columns_) width += column.width;
  return width;
}

Table::Lines Table::Wrap(const std::vector<Cell>& cells) {
  Lines lines(columns_.size());
  for (std::size_t i = 0; i < columns_.size() && i < cells.size(); ++i) {
    forms::Font font = engine_.font();
    font.bold = font.bold || cells[i].bold;
    lines[i] = WrapText(engine_.metrics(), font, cells[i].text, columns_[i].width - 2 * kPadding);
  }
  return lines;
}

void Table::Head() {
  std::vector<Cell> cells;
  for (const TableColumn& column : columns_) {
    cells.emplace_back(column.heading);
    cells.back().bold = true;
  }
  has_head_ = below_head_ = true;
  const Lines lines = Wrap(cells);
  Print(cells, lines, 0, LongestOf(lines));
}

void Table::Row(const std::vector<Cell>& cells) { Row(cells, 0); }

void Table::Row(const std::vector<Cell>& cells, int gap) {
  const Lines lines = Wrap(cells);
  const std::size_t count = LongestOf(lines);
  const int line = std::max(engine_.LineHeight(), 1);
  const int height = static_cast<int>(count) * line;
  if (!has_head_) {
    if (!engine_.HasRoom(2 * line)) engine_.NextColumn();
    Head();
  }
  if (!engine_.HasRoom(height + (below_head_ ? 0 : gap))) {
    if (!below_head_) {
      engine_.NextColumn();
      Head();
    }
  } else if (!below_head_) {
    engine_.Skip(gap);
  }
  for (std::size_t first = 0; first < count;) {
    if (first > 0) {
      engine_.NextColumn();
      Head();
    }
    const int room = std::max((engine_.bottom() - engine_.y()) / line, 1);
    const std::size_t some = std::min(count - first, static_cast<std::size_t>(room));
    Print(cells, lines, first, some);
    first += some;
    below_head_ = false;
  }
}

void Table::Print(const std::vector<Cell>& cells, const Lines& lines, std::size_t first,
                  std::size_t count) {
  const forms::Font plain = engine_.font();
  const int line = engine_.LineHeight();
  const int top = engine_.y();
  int left = engine_.left();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const TableColumn& column = columns_[i];
    const int x = column.align == Align::kLeft    ? left + kPadding
                  : column.align == Align::kRight ? left + column.width - kPadding
                                                  : left + column.width / 2;
    if (i < cells.size()) {
      forms::Font font = plain;
      font.bold = plain.bold || cells[i].bold;
      font.color = cells[i].color.value_or(plain.color);
      engine_.SetFont(font);
    }
    for (std::size_t k = first; k < std::min(first + count, lines[i].size()); ++k) {
      if (lines[i][k].empty()) continue;
      engine_.TextAt(x, top + static_cast<int>(k - first) * line, lines[i][k], column.align);
    }
    left += column.width;
  }
  engine_.SetFont(plain);
  engine_.MoveTo(top + static_cast<int>(count) * line);
  DrawLines(top, engine_.y());
}

void Table::DrawLines(int top, int bottom) {
  if (lines_ == TableLines::kNone) return;
  int x = engine_.left();
  engine_.Add(forms::PlacedLine{x, top, x, bottom});
  for (const TableColumn& column : columns_) {
    x += column.width;
    engine_.Add(forms::PlacedLine{x, top, x, bottom});
  }
  if (lines_ != TableLines::kAll) return;
  for (int y : {top, bottom}) engine_.Add(forms::PlacedLine{engine_.left(), y, x, y});
}

std::vector<int> Shares(int width, std::initializer_list<double> shares) {
  std::vector<int> widths;
  for (double share : shares) widths.push_back(static_cast<int>(width * share));
  return widths;
}

}  // namespace tarnwell::print
