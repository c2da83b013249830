#include "richtext/table_shape.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "richtext/kept_words.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostGridColumns = 63;  // that a grid tells apart
constexpr int kLeastWidth = 60;               // twips that a cell keeps

// What a new cell is like: its look, and an empty paragraph of its first one's.
Cell EmptyLike(const Cell& like) {
  Cell cell = like;
  Paragraph empty;
  empty.format = like.paragraphs.front().format;
  empty.format.page_break_before = false;
  empty.mark = like.paragraphs.front().mark;
  cell.paragraphs = {std::move(empty)};
  return cell;
}

void Unmerge(std::string& words) {
  for (const char* word : {"clmgf", "clmrg", "clvmgf", "clvmrg"}) RemoveKept(word, words);
}

// The widths that other words give, which no longer hold.
void ForgetWidths(TableRow& row) {
  for (const char* word : {"trwWidth", "trftsWidth"}) RemoveKept(word, row.other);
  for (Cell& cell : row.cells) {
    for (const char* word : {"clwWidth", "clftsWidth"}) RemoveKept(word, cell.other);
  }
}

int WidthOf(const TableRow& row, std::size_t cell) {
  const int left = cell == 0 ? row.left_edge : row.cells[cell - 1].right_edge;
  return row.cells[cell].right_edge - left;
}

// The part of a table that an edit is about: rows and columns, `end` behind the last.
struct Area {
  std::size_t row = 0;
  std::size_t row_end = 0;
  int column = 0;
  int column_end = 0;
};

Area AreaOf(const TableShape& shape, const std::pair<TableCell, TableCell>& cells) {
  const auto& [a, b] = cells;
  const auto rows_of = [&](const TableCell& one) {
    return one.row + static_cast<std::size_t>(shape.SpanOf(one.row, one.cell).rows);
  };
  const auto columns_of = [&](const TableCell& one) {
    return shape.BeginOf(one.row, one.cell) + shape.SpanOf(one.row, one.cell).columns;
  };
  return {std::min(a.row, b.row), std::max(rows_of(a), rows_of(b)),
          std::min(shape.BeginOf(a.row, a.cell), shape.BeginOf(b.row, b.cell)),
          std::max(columns_of(a), columns_of(b))};
}

class Reshaping {
 public:
  Reshaping(Table& table, const std::pair<TableCell, TableCell>& cells)
      : table_(table), shape_(table), area_(AreaOf(shape_, cells)) {}

  TableCell InsertRow(std::size_t at, std::size_t like) {
    TableRow row = table_.rows[like];
    bool cuts = false;  // through cells that are merged with those above them
    if (at < table_.rows.size()) {
      const TableRow& below = table_.rows[at];
      for (std::size_t i = 0; i < below.cells.size(); ++i) cuts |= GoesOn(at, i);
      if (cuts) row = below;
    }
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      Cell cell = EmptyLike(row.cells[i]);
      const bool goes_on = cuts && GoesOn(at, i);
      RemoveKept("clvmgf", cell.other);
      if (!goes_on) RemoveKept("clvmrg", cell.other);
      row.cells[i] = std::move(cell);
    }
    const bool is_head = at < table_.rows.size() && HoldsKept("trhdr", table_.rows[at].other);
    if (!is_head) RemoveKept("trhdr", row.other);
    for (const char* number : {"irow", "irowband"}) RemoveKept(number, row.other);
    if (at == table_.rows.size()) RemoveKept("lastrow", table_.rows.back().other);
    table_.rows.insert(table_.rows.begin() + static_cast<std::ptrdiff_t>(at), std::move(row));
    return {at, 0};
  }

  // `like_left`: the new column is like the one to its left.
  TableCell InsertColumn(int column, bool like_left, int text_width) {
    if (shape_.grid().widths.size() >= kMostGridColumns) return {area_.row, 0};
    const int neighbour = like_left ? column - 1 : column;
    const int width = shape_.EdgeOf(neighbour + 1) - shape_.EdgeOf(neighbour);
    TableCell cursor{area_.row, 0};
    const int old_right = RightEdge();
    for (std::size_t r = 0; r < table_.rows.size(); ++r) {
      const std::size_t cell = InsertCell(r, column, like_left, width);
      if (r == area_.row) cursor.cell = cell;
    }
    Narrow(std::max(text_width, old_right));
    return cursor;
  }

  TableCell DeleteRows() {
    const std::size_t next = area_.row_end;
    if (next < table_.rows.size()) {
      for (std::size_t r = area_.row; r < next; ++r) HandDown(r, next);
    }
    table_.rows.erase(table_.rows.begin() + static_cast<std::ptrdiff_t>(area_.row),
                      table_.rows.begin() + static_cast<std::ptrdiff_t>(next));
    return {area_.row, 0};
  }

  TableCell DeleteColumns() {
    TableCell cursor{area_.row, 0};
    for (std::size_t r = 0; r < table_.rows.size(); ++r) {
      const std::size_t cell = DeleteCells(r);
      if (r == area_.row) cursor.cell = cell;
    }
    std::erase_if(table_.rows, [](const TableRow& row) { return row.cells.empty(); });
    return cursor;
  }

  const Area& area() const { return area_; }

 private:
  bool GoesOn(std::size_t row, std::size_t cell) const {
    return shape_.GoesOnFromAbove(table_, row, cell);
  }

  // What merged cells of a row that goes hold goes to those parts of them that stay, in `next`.
  void HandDown(std::size_t row, std::size_t next) {
    for (std::size_t i = 0; i < table_.rows[row].cells.size(); ++i) {
      const CellSpan& span = shape_.SpanOf(row, i);
      if (span.is_covered || row + static_cast<std::size_t>(span.rows) <= next) continue;
      std::vector<Cell>& below = table_.rows[next].cells;
      for (std::size_t j = 0; j < below.size(); ++j) {
        if (shape_.BeginOf(next, j) != shape_.BeginOf(row, i) || !GoesOn(next, j)) continue;
        below[j].paragraphs = table_.rows[row].cells[i].paragraphs;
        RemoveKept("clvmrg", below[j].other);
        KeepWord("\\clvmgf", below[j].other);
      }
    }
  }

  // Gives the number of the new cell, or of the one that got wider.
  std::size_t InsertCell(std::size_t r, int column, bool like_left, int width) {
    TableRow& row = table_.rows[r];
    std::size_t i = 0;
    while (i < row.cells.size() && shape_.EndOf(r, i) <= column) ++i;
    const bool is_inside = i < row.cells.size() && shape_.BeginOf(r, i) < column;
    std::size_t first_moved = i;
    if (!is_inside) {
      const bool is_merged = i < row.cells.size() && HoldsKept("clmrg", row.cells[i].other);
      const std::size_t like = (like_left && i > 0) || i == row.cells.size() ? i - 1 : i;
      Cell cell = EmptyLike(row.cells[is_merged ? i : like]);
      if (!is_merged) Unmerge(cell.other);
      cell.right_edge = i == 0 ? row.left_edge : row.cells[i - 1].right_edge;
      row.cells.insert(row.cells.begin() + static_cast<std::ptrdiff_t>(i), std::move(cell));
    }
    for (; first_moved < row.cells.size(); ++first_moved) {
      row.cells[first_moved].right_edge += width;
    }
    ForgetWidths(row);
    return i;
  }

  // Gives the number of the first cell behind those that went.
  std::size_t DeleteCells(std::size_t r) {
    TableRow& row = table_.rows[r];
    std::vector<Cell> kept;
    std::size_t cursor = 0;
    int edge = row.left_edge;
    std::vector<Paragraph> left_over;  // of the head of merged cells, for the next part of them
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const int begin = shape_.BeginOf(r, i);
      const int end = shape_.EndOf(r, i);
      const int from = std::max(begin, area_.column);
      const int to = std::min(end, area_.column_end);
      const bool goes = from < to && begin >= area_.column && end <= area_.column_end;
      const bool is_merged = HoldsKept("clmrg", row.cells[i].other);
      if (end <= area_.column) cursor = i + 1;
      if (goes) {
        if (!is_merged) left_over = row.cells[i].paragraphs;
        continue;
      }
      const int lost = from < to ? shape_.EdgeOf(to) - shape_.EdgeOf(from) : 0;
      edge += std::max(WidthOf(row, i) - lost, kLeastWidth);
      Cell cell = row.cells[i];
      cell.right_edge = edge;
      if (is_merged && !left_over.empty()) {
        cell.paragraphs = std::move(left_over);
        RemoveKept("clmrg", cell.other);
        KeepWord("\\clmgf", cell.other);
      }
      left_over.clear();
      kept.push_back(std::move(cell));
    }
    row.cells = std::move(kept);
    ForgetWidths(row);
    return cursor;
  }

  int RightEdge() const {
    int right = shape_.grid().left_edge;
    for (const TableRow& row : table_.rows) {
      if (!row.cells.empty()) right = std::max(right, row.cells.back().right_edge);
    }
    return right;
  }

  void Narrow(int right) {
    const int left = shape_.grid().left_edge;
    const int width = RightEdge() - left;
    if (RightEdge() <= right || right <= left) return;
    const auto narrowed = [=](int edge) {
      return left + static_cast<int>(static_cast<long long>(edge - left) * (right - left) / width);
    };
    for (TableRow& row : table_.rows) {
      row.left_edge = narrowed(row.left_edge);
      for (Cell& cell : row.cells) cell.right_edge = narrowed(cell.right_edge);
    }
  }

  Table& table_;
  const TableShape shape_;  // as it was before
  const Area area_;
};

std::vector<const TableRow*> RowsOf(const Table& table) {
  std::vector<const TableRow*> rows;
  for (const TableRow& row : table.rows) rows.push_back(&row);
  return rows;
}

}  // namespace

TableShape::TableShape(const Table& table)
    : grid_(GridOf(RowsOf(table))), spans_(CellSpansOf(RowsOf(table), grid_)) {
  for (const std::vector<int>& row : grid_.spans) {
    std::vector<int>& begins = begins_.emplace_back(row.size());
    std::exclusive_scan(row.begin(), row.end(), begins.begin(), 0);
  }
}

int TableShape::EdgeOf(int column) const {
  return std::accumulate(grid_.widths.begin(), grid_.widths.begin() + column, 0);
}

bool TableShape::GoesOnFromAbove(const Table& table, std::size_t row, std::size_t cell) const {
  return spans_[row][cell].is_covered && HoldsKept("clvmrg", table.rows[row].cells[cell].other);
}

TableCell Reshape(Table& table, const std::pair<TableCell, TableCell>& cells, TableEdit edit,
                  int text_width) {
  Reshaping reshaping(table, cells);
  const Area& area = reshaping.area();
  switch (edit) {
    case TableEdit::kRowAbove:
      return reshaping.InsertRow(area.row, area.row);
    case TableEdit::kRowBelow:
      return reshaping.InsertRow(area.row_end, area.row_end - 1);
    case TableEdit::kColumnLeft:
      return reshaping.InsertColumn(area.column, false, text_width);
    case TableEdit::kColumnRight:
      return reshaping.InsertColumn(area.column_end, true, text_width);
    case TableEdit::kDeleteRows:
      return reshaping.DeleteRows();
    case TableEdit::kDeleteColumns:
      return reshaping.DeleteColumns();
    case TableEdit::kDeleteTable:
      table.rows.clear();
      break;
  }
  return {};
}

}  // namespace tarnwell::richtext
