#include "print/rich_table.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

constexpr int kPaperEdge = 100;             // twips that a table keeps off the edge of the sheet
constexpr std::size_t kMostTogether = 100;  // rows that cells reach over, or that stay together

bool GoesOn(const richtext::TableRow& row) {
  return std::ranges::any_of(row.cells, [](const richtext::Cell& cell) {
    return richtext::HoldsKept("clvmrg", cell.other);
  });
}

// The end of the rows from `begin` on that cells of the first one may reach over.
std::size_t EndOfMerged(const richtext::Table& table, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < table.rows.size() && end - begin < kMostTogether && GoesOn(table.rows[end])) ++end;
  return end;
}

bool StaysWithNext(const richtext::TableRow& row) {
  if (row.cells.empty() || row.cells[0].paragraphs.empty()) return false;
  return richtext::HoldsKept("keepn", row.cells[0].paragraphs[0].format.other);
}

// The end of those that begin at `begin` and stay together.
std::size_t EndOfKept(const richtext::Table& table, std::size_t begin) {
  std::size_t end = EndOfMerged(table, begin);
  while (end < table.rows.size() && end - begin < kMostTogether &&
         StaysWithNext(table.rows[end - 1])) {
    end = EndOfMerged(table, end);
  }
  return end;
}

}  // namespace

std::size_t HeadRows(const richtext::Table& table) {
  const auto first_plain = std::ranges::find_if_not(
      table.rows, [](const auto& row) { return richtext::HoldsKept("trhdr", row.other); });
  return static_cast<std::size_t>(first_plain - table.rows.begin());
}

std::vector<RowBox> RowBox::Of(RichPrinting& printing, std::span<const richtext::TableRow> rows,
                               const RowRoom& room) {
  std::vector<const richtext::TableRow*> all;
  for (const richtext::TableRow& row : rows) all.push_back(&row);
  const auto spans = richtext::CellSpansOf(all, richtext::GridOf(all));
  std::vector<RowBox> boxes;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    boxes.push_back(RowBox(printing, rows[i], spans[i], room));
  }
  // From above, so that what a row must still grow for is known when its turn comes.
  for (std::size_t row = 0; row < boxes.size(); ++row) {
    for (std::size_t i = 0; i < boxes[row].cells_.size(); ++i) Join(row, i, boxes);
  }
  return boxes;
}

RowBox::RowBox(RichPrinting& printing, const richtext::TableRow& row,
               std::span<const richtext::CellSpan> spans, const RowRoom& room)
    : printing_(&printing) {
  // A height that the document calls exact would cut texts off.
  const int told = NumberBehind("\\trrh", row.other).value_or(0);
  least_height_ = told_height_ = std::min(std::abs(told), room.most_height);
  int right = row.left_edge;
  for (const richtext::Cell& cell : row.cells) right = std::max(right, cell.right_edge);
  const double width = std::max(right - row.left_edge, 1);
  const double scale = std::min(1.0, room.width / width);
  const int farthest = room.width - static_cast<int>(width * scale);
  const int left =
      std::clamp(row.left_edge, room.nearest_left, std::max(farthest, room.nearest_left));
  const auto on_column = [&](int edge) {
    return left + static_cast<int>((edge - row.left_edge) * scale);
  };
  int left_edge = row.left_edge;
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    // Cells that lie under the one to their left give it their room.
    std::size_t last = i;
    while (last + 1 < spans.size() && spans[last + 1].is_covered &&
           richtext::HoldsKept("clmrg", row.cells[last + 1].other)) {
      ++last;
    }
    const int right_edge = std::max(left_edge, row.cells[last].right_edge);
    if (!spans[i].is_covered) {
      const CellPlace place{on_column(left_edge), on_column(right_edge),
                            CellMargins(row, row.cells[i])};
      cells_.push_back({RichCell(printing, row.cells[i], place, std::max(room.most_height, 1)),
                        static_cast<std::size_t>(spans[i].rows)});
    }
    left_edge = right_edge;
    i = last;
  }
}

void RowBox::Join(std::size_t row, std::size_t cell, std::vector<RowBox>& rows) {
  PlacedCell& joined = rows[row].cells_[cell];
  const std::size_t end = std::min(row + joined.rows, rows.size());
  if (end - row < 2) return;
  int height = 0;
  for (std::size_t i = row; i < end; ++i) height += rows[i].height();
  const int missing = joined.cell.HeightLeft() - height;
  RowBox& last = rows[end - 1];
  if (missing > 0) last.least_height_ = last.height() + missing;
  joined.height_below = std::max(missing, 0) + height - rows[row].height();
}

void RowBox::Part() {
  least_height_ = told_height_;
  for (PlacedCell& cell : cells_) {
    cell.rows = 1;
    cell.height_below = 0;
  }
}

int RowBox::height() const {
  int height = least_height_;
  for (const PlacedCell& cell : cells_) {
    if (cell.rows == 1) height = std::max(height, cell.cell.HeightLeft());
  }
  return height;
}

bool RowBox::HasRoomForALine(int room) const {
  return std::ranges::any_of(cells_, [&](const auto& cell) {
    return cell.cell.box().FittingLines(room - cell.cell.EdgesHeight()) > 0;
  });
}

bool RowBox::IsDone() const {
  return std::ranges::all_of(cells_, [](const auto& cell) { return cell.cell.box().is_done(); });
}

std::vector<FoundNote> RowBox::TakeNotes() {
  std::vector<FoundNote> notes;
  for (PlacedCell& cell : cells_) {
    for (FoundNote& note : cell.cell.box().TakeNotes()) notes.push_back(std::move(note));
  }
  return notes;
}

void RowBox::Place(int x, int y, int height) {
  PageEngine& engine = printing_->engine;
  const auto bottom = [&](const PlacedCell& cell) { return y + height + cell.height_below; };
  for (const PlacedCell& cell : cells_) cell.cell.PlaceFill(engine, x, y, bottom(cell));
  for (PlacedCell& cell : cells_) {
    cell.cell.PlaceNext(cell.cell.box().count_left(), x, y + cell.cell.TopInRow(bottom(cell) - y));
  }
  for (const PlacedCell& cell : cells_) cell.cell.PlaceBorders(engine, x, y, bottom(cell));
}

int RowBox::PlacePart(int x, int y, int room, bool at_least_a_line) {
  std::vector<std::size_t> counts;
  int height = std::max(room, 0);
  for (const PlacedCell& cell : cells_) {
    const RichBox& box = cell.cell.box();
    std::size_t count = box.FittingLines(room - cell.cell.EdgesHeight());
    if (count == 0 && at_least_a_line && !box.is_done()) count = 1;
    height = std::max(height, box.HeightOf(count) + cell.cell.EdgesHeight());
    counts.push_back(count);
  }
  PageEngine& engine = printing_->engine;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    cells_[i].cell.PlaceFill(engine, x, y, y + height);
    cells_[i].cell.PlaceNext(counts[i], x, y);
    cells_[i].cell.PlaceBorders(engine, x, y, y + height);
  }
  least_height_ = 0;
  return height;
}

RichTable::RichTable(RichPrinting& printing, const richtext::Table& table)
    : printing_(printing), engine_(printing.engine), table_(table), heads_(HeadRows(table)) {}

std::vector<RowBox> RichTable::LayOut(std::size_t begin, std::size_t end) {
  const RowRoom room{engine_.ColumnWidth(), engine_.column_height(),
                     std::min(kPaperEdge - engine_.left(), 0)};
  return RowBox::Of(printing_, std::span(table_.rows).subspan(begin, end - begin), room);
}

bool RichTable::Next() {
  begin_ = end_;
  if (begin_ == table_.rows.size()) return false;
  end_ = EndOfMerged(table_, begin_);
  if (waiting_ == laid_out_.size()) {
    const std::size_t kept_end = EndOfKept(table_, begin_);
    laid_out_ = LayOut(begin_, kept_end);
    waiting_ = 0;
    int height = 0;
    for (const RowBox& row : laid_out_) height += row.height();
    // More than a column can't stay together.
    if (height <= engine_.column_height()) end_ = kept_end;
  }
  const auto first = laid_out_.begin() + static_cast<std::ptrdiff_t>(waiting_);
  const auto last = first + static_cast<std::ptrdiff_t>(end_ - begin_);
  rows_ = {std::make_move_iterator(first), std::make_move_iterator(last)};
  waiting_ += end_ - begin_;
  return true;
}

int RichTable::height() const {
  int height = 0;
  for (const RowBox& row : rows_) height += row.height();
  return height;
}

std::vector<FoundNote> RichTable::TakeNotes() {
  std::vector<FoundNote> notes;
  for (RowBox& row : rows_) {
    for (FoundNote& note : row.TakeNotes()) notes.push_back(std::move(note));
  }
  return notes;
}

void RichTable::BeginColumn() {
  engine_.NextColumn();
  is_fresh_ = true;
  if (begin_ < heads_) return;
  const int last_head = engine_.y() + engine_.column_height() / 2;
  for (RowBox& head : LayOut(0, heads_)) {
    const int height = head.height();
    if (engine_.y() + height > last_head) return;
    head.Place(engine_.left(), engine_.y(), height);
    engine_.Skip(height);
  }
}

void RichTable::Place(int notes_height) {
  is_fresh_ = engine_.at_column_top();
  const bool fits_in_one = height() + notes_height <= engine_.column_height();
  if (!engine_.HasRoom(height() + notes_height) && fits_in_one && !is_fresh_) BeginColumn();
  if (notes_height < engine_.column_height() / 2) engine_.Reserve(notes_height);
  const bool fits = engine_.HasRoom(height());
  for (RowBox& row : rows_) {
    if (!fits) {
      row.Part();
      PlaceParted(row);
      continue;
    }
    const int height = row.height();
    row.Place(engine_.left(), engine_.y(), height);
    engine_.Skip(height);
  }
}

void RichTable::PlaceParted(RowBox& row) {
  const bool fits_in_one = row.height() <= engine_.column_height();
  if (!engine_.HasRoom(row.height()) && fits_in_one && !is_fresh_) BeginColumn();
  while (true) {
    const int room = engine_.bottom() - engine_.y();
    if (!is_fresh_ && !engine_.HasRoom(row.height()) && !row.HasRoomForALine(room)) {
      BeginColumn();
      continue;
    }
    if (engine_.HasRoom(row.height())) {
      const int height = row.height();
      row.Place(engine_.left(), engine_.y(), height);
      engine_.Skip(height);
      is_fresh_ = false;
      return;
    }
    engine_.Skip(row.PlacePart(engine_.left(), engine_.y(), room, is_fresh_));
    if (row.IsDone()) return;
    BeginColumn();
  }
}

}  // namespace tarnwell::print
