#include "print/rich_table.h"

#include <algorithm>
#include <utility>

#include "print/paragraph_lines.h"

namespace tarnwell::print {
namespace {

constexpr int kLeastCell = 200;  // twips of a cell's text, however narrow the cell
constexpr int kPaperEdge = 100;  // twips that a table keeps off the edge of the sheet
constexpr int kThickest = 120;   // twips of a border

struct CellLine {
  RichLine line;
  int gap = 0;  // above it
  int FullHeight() const { return gap + line.height; }
};

struct LaidCell {
  const richtext::Cell* cell = nullptr;
  int left = 0;  // edges on the page
  int right = 0;
  std::vector<CellLine> lines;
  std::size_t next = 0;  // line that isn't placed yet
  std::size_t end = 0;   // of the lines that come to stand on this page
  int last_gap = 0;      // below the last line
};

bool IsDrawn(const richtext::Border& border) {
  return !border.style.empty() && border.style != "brdrnone" && border.style != "brdrnil";
}

class RowPlacer {
 public:
  RowPlacer(PageEngine& engine, RichStyles& styles, const richtext::TableRow& row)
      : engine_(engine), styles_(styles), row_(row) {}

  void Place() {
    LayOut();
    int height = HeightLeft();
    if (!engine_.HasRoom(height) && height <= engine_.column_height()) Break();
    while (true) {
      height = HeightLeft();
      if (engine_.HasRoom(height)) return PlaceLines(height, false);
      const int room = engine_.bottom() - engine_.y();
      const bool is_stuck = engine_.at_column_top();
      if (!HasRoomForALine(room) && !is_stuck) {
        Break();
        continue;
      }
      PlaceLines(room, is_stuck);
      if (IsDone()) return;
      engine_.NextColumn();
    }
  }

 private:
  void Break() {
    if (!engine_.at_column_top()) engine_.NextColumn();
  }

  void LayOut() {
    int right = row_.left_edge;
    for (const richtext::Cell& cell : row_.cells) right = std::max(right, cell.right_edge);
    const double width = std::max(right - row_.left_edge, 1);
    scale_ = std::min(1.0, engine_.ColumnWidth() / width);
    const int farthest = engine_.ColumnWidth() - static_cast<int>(width * scale_);
    const int nearest = std::min(kPaperEdge - engine_.left(), 0);
    shift_ =
        std::clamp(row_.left_edge, nearest, std::max(farthest, nearest)) - row_.left_edge * scale_;
    int left_edge = row_.left_edge;
    for (const richtext::Cell& cell : row_.cells) {
      cells_.push_back(LayOutCell(cell, left_edge));
      left_edge = std::max(left_edge, cell.right_edge);
    }
  }

  int OnColumn(int edge) const { return static_cast<int>(edge * scale_ + shift_); }

  LaidCell LayOutCell(const richtext::Cell& cell, int left_edge) {
    LaidCell laid;
    laid.cell = &cell;
    laid.left = OnColumn(left_edge);
    laid.right = std::max(OnColumn(cell.right_edge), laid.left);
    const int width = std::max(laid.right - laid.left - 2 * row_.half_gap, kLeastCell);
    const RichRoom room{width, std::max(engine_.column_height(), 1)};
    for (const richtext::Paragraph& paragraph : cell.paragraphs) {
      int gap = laid.last_gap + paragraph.format.space_before;
      ParagraphLines lines(paragraph, styles_, room);
      for (CellLine line; lines.Next(line.line); line = {}) {
        line.gap = std::exchange(gap, 0);
        laid.lines.push_back(std::move(line));
      }
      laid.last_gap = gap + paragraph.format.space_after;
    }
    return laid;
  }

  static int HeightLeft(const LaidCell& cell) {
    int height = cell.last_gap;
    for (std::size_t i = cell.next; i < cell.lines.size(); ++i) {
      height += cell.lines[i].FullHeight();
    }
    return height;
  }
  int HeightLeft() const {
    int height = 0;
    for (const LaidCell& cell : cells_) height = std::max(height, HeightLeft(cell));
    return height;
  }

  // How many more lines of the cell fit into `room`.
  static std::size_t FittingLines(const LaidCell& cell, int room) {
    std::size_t i = cell.next;
    while (i < cell.lines.size()) {
      room -= cell.lines[i].FullHeight();
      if (room < 0) break;
      ++i;
    }
    return i - cell.next;
  }
  bool HasRoomForALine(int room) const {
    return std::ranges::any_of(cells_, [&](auto& cell) { return FittingLines(cell, room) > 0; });
  }
  bool IsDone() const {
    return std::ranges::all_of(cells_, [](auto& cell) { return cell.next == cell.lines.size(); });
  }

  // What fits into `room`, with the borders around it, and at least one line if `forced`.
  void PlaceLines(int room, bool forced) {
    const int top = engine_.y();
    int bottom = top + (engine_.HasRoom(room) ? room : 0);
    for (LaidCell& cell : cells_) {
      cell.end = cell.next + FittingLines(cell, room);
      if (cell.end == cell.next && forced && cell.next < cell.lines.size()) ++cell.end;
      int height = 0;
      for (std::size_t i = cell.next; i < cell.end; ++i) height += cell.lines[i].FullHeight();
      bottom = std::max(bottom, top + height);
    }
    for (const LaidCell& cell : cells_) PlaceFill(cell, top, bottom);
    for (LaidCell& cell : cells_) PlaceText(cell, top);
    for (const LaidCell& cell : cells_) PlaceBorders(cell, top, bottom);
    engine_.MoveTo(bottom);
  }

  void PlaceFill(const LaidCell& cell, int top, int bottom) {
    if (!cell.cell->fill) return;
    engine_.Add(forms::PlacedBox{engine_.left() + cell.left, top, cell.right - cell.left,
                                 bottom - top, std::nullopt, ToPageColor(*cell.cell->fill)});
  }

  void PlaceText(LaidCell& cell, int top) {
    int y = top;
    for (; cell.next < cell.end; ++cell.next) {
      const CellLine& line = cell.lines[cell.next];
      PlaceLine(engine_, styles_, line.line, engine_.left() + cell.left + row_.half_gap,
                y + line.gap);
      y += line.FullHeight();
    }
  }

  void PlaceBorders(const LaidCell& cell, int top, int bottom) {
    const int left = engine_.left() + cell.left;
    const int right = engine_.left() + cell.right;
    PlaceBorder(cell.cell->top, left, top, right, top);
    PlaceBorder(cell.cell->left, left, top, left, bottom);
    PlaceBorder(cell.cell->bottom, left, bottom, right, bottom);
    PlaceBorder(cell.cell->right, right, top, right, bottom);
  }

  void PlaceBorder(const richtext::Border& border, int x1, int y1, int x2, int y2) {
    if (!IsDrawn(border)) return;
    forms::PlacedLine line{x1, y1, x2, y2};
    if (border.color) line.color = ToPageColor(*border.color);
    if (border.width > 0) line.width = std::min(border.width, kThickest);
    engine_.Add(line);
  }

  PageEngine& engine_;
  RichStyles& styles_;
  const richtext::TableRow& row_;
  double scale_ = 1;
  double shift_ = 0;
  std::vector<LaidCell> cells_;
};

}  // namespace

void AddRichRow(PageEngine& engine, RichStyles& styles, const richtext::TableRow& row) {
  RowPlacer(engine, styles, row).Place();
}

}  // namespace tarnwell::print
