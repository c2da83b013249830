#include "print/rich_table.h"

#include <algorithm>
#include <cstdlib>

#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

constexpr int kPaperEdge = 100;  // twips that a table keeps off the edge of the sheet

}  // namespace

std::size_t HeadRows(const richtext::Table& table) {
  const auto first_plain = std::ranges::find_if_not(
      table.rows, [](const auto& row) { return richtext::HoldsKept("trhdr", row.other); });
  return static_cast<std::size_t>(first_plain - table.rows.begin());
}

RichRow::RichRow(PageEngine& engine, RichStyles& styles, const richtext::TableRow& row)
    : engine_(engine), styles_(styles), row_(row) {
  // A height that the document calls exact would cut texts off.
  const int told = NumberBehind("\\trrh", row.other).value_or(0);
  least_height_ = std::min(std::abs(told), engine.column_height());
  LayOut();
}

void RichRow::LayOut() {
  int right = row_.left_edge;
  for (const richtext::Cell& cell : row_.cells) right = std::max(right, cell.right_edge);
  const double width = std::max(right - row_.left_edge, 1);
  const double scale = std::min(1.0, engine_.ColumnWidth() / width);
  const int farthest = engine_.ColumnWidth() - static_cast<int>(width * scale);
  const int nearest = std::min(kPaperEdge - engine_.left(), 0);
  const int left = std::clamp(row_.left_edge, nearest, std::max(farthest, nearest));
  const auto on_column = [&](int edge) {
    return left + static_cast<int>((edge - row_.left_edge) * scale);
  };
  int left_edge = row_.left_edge;
  for (const richtext::Cell& cell : row_.cells) {
    const int right_edge = std::max(left_edge, cell.right_edge);
    cells_.emplace_back(cell, on_column(left_edge), on_column(right_edge), row_.half_gap);
    cells_.back().LayOut(styles_, std::max(engine_.column_height(), 1));
    left_edge = right_edge;
  }
}

int RichRow::height() const {
  int height = least_height_;
  for (const RichCell& cell : cells_) height = std::max(height, cell.HeightLeft());
  return height;
}

bool RichRow::HasRoomForALine(int room) const {
  return std::ranges::any_of(cells_, [&](auto& cell) { return cell.FittingLines(room) > 0; });
}

bool RichRow::IsDone() const {
  return std::ranges::all_of(cells_, [](auto& cell) { return cell.is_done(); });
}

void RichRow::BeginColumn(std::span<const richtext::TableRow> heads) {
  engine_.NextColumn();
  is_fresh_ = true;
  const int last_head = engine_.y() + engine_.column_height() / 2;
  for (const richtext::TableRow& one : heads) {
    RichRow head(engine_, styles_, one);
    if (engine_.y() + head.height() > last_head) return;
    head.PlaceWhole(head.height());
  }
}

void RichRow::Place(std::span<const richtext::TableRow> heads) {
  is_fresh_ = engine_.at_column_top();
  if (!engine_.HasRoom(height()) && height() <= engine_.column_height() && !is_fresh_) {
    BeginColumn(heads);
  }
  while (true) {
    if (engine_.HasRoom(height())) return PlaceWhole(height());
    const int room = engine_.bottom() - engine_.y();
    if (!is_fresh_ && !HasRoomForALine(room)) {
      BeginColumn(heads);
      continue;
    }
    PlacePart(room);
    if (IsDone()) return;
    BeginColumn(heads);
  }
}

void RichRow::PlaceWhole(int height) {
  const int top = engine_.y();
  for (const RichCell& cell : cells_) cell.PlaceFill(engine_, top, top + height);
  for (RichCell& cell : cells_) {
    cell.PlaceNext(engine_, styles_, cell.FittingLines(height), top + cell.TopInRow(height));
  }
  for (const RichCell& cell : cells_) cell.PlaceBorders(engine_, top, top + height);
  engine_.MoveTo(top + height);
}

// What fits into `room`, and in a column of its own at least one line.
void RichRow::PlacePart(int room) {
  std::vector<std::size_t> counts;
  int height = engine_.HasRoom(room) ? std::max(room, 0) : 0;
  for (const RichCell& cell : cells_) {
    std::size_t count = cell.FittingLines(room);
    if (count == 0 && is_fresh_ && !cell.is_done()) count = 1;
    height = std::max(height, cell.HeightOf(count));
    counts.push_back(count);
  }
  const int top = engine_.y();
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    cells_[i].PlaceFill(engine_, top, top + height);
    cells_[i].PlaceNext(engine_, styles_, counts[i], top);
    cells_[i].PlaceBorders(engine_, top, top + height);
  }
  engine_.MoveTo(top + height);
  least_height_ = 0;
}

}  // namespace tarnwell::print
