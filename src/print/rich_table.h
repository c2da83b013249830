#pragma once

#include <span>
#include <vector>

#include "print/rich_cell.h"
#include "richtext/merged_cells.h"

namespace tarnwell::print {

// What a table's rows are laid out in, in twips.
struct RowRoom {
  int width = 0;
  int most_height = 0;   // what a picture may take
  int nearest_left = 0;  // of a table that stands out to the left
};

// A row of a table, laid out. A row that is wider than its room is narrowed.
class RowBox {
 public:
  // Rows of a table, which needn't stay. A cell that is merged with others below it gives the last
  // of their rows the height that it needs beyond theirs.
  static std::vector<RowBox> Of(RichPrinting& printing, std::span<const richtext::TableRow> rows,
                                const RowRoom& room);

  int height() const;
  bool HasRoomForALine(int room) const;
  bool IsDone() const;
  std::vector<FoundNote> TakeNotes();
  // Cells that reach over several rows stand in their first alone.
  void Part();

  // All of it, with the left edge of the column at `x`.
  void Place(int x, int y, int height);
  // What fits into `room`, and if `at_least_a_line` at least that; returns its height.
  int PlacePart(int x, int y, int room, bool at_least_a_line);

 private:
  struct PlacedCell {
    RichCell cell;
    std::size_t rows = 1;  // that it reaches over
    int height_below = 0;  // of those below the first
  };

  RowBox(RichPrinting& printing, const richtext::TableRow& row,
         std::span<const richtext::CellSpan> spans, const RowRoom& room);
  static void Join(std::size_t row, std::size_t cell, std::vector<RowBox>& rows);

  RichPrinting* printing_;
  std::vector<PlacedCell> cells_;
  int told_height_ = 0;
  int least_height_ = 0;
};

// Places the rows of a table at the engine's position. Rows that don't fit in what is left of the
// column begin the next one, below the table's head rows, unless they are taller than a column:
// then they are parted between lines.
class RichTable {
 public:
  RichTable(RichPrinting& printing, const richtext::Table& table);

  // Takes the next row, and with it those that a cell of it reaches over and those that it stays
  // together with, if they fit in a column; false behind the last.
  bool Next();
  int height() const;
  std::vector<FoundNote> TakeNotes();
  // `notes_height` is what the notes need at the foot of the column.
  void Place(int notes_height);

 private:
  std::vector<RowBox> LayOut(std::size_t begin, std::size_t end);
  void BeginColumn();
  void PlaceParted(RowBox& row);

  RichPrinting& printing_;
  PageEngine& engine_;
  const richtext::Table& table_;
  std::size_t heads_;
  std::size_t begin_ = 0;  // the rows in hand
  std::size_t end_ = 0;
  std::vector<RowBox> rows_;
  std::vector<RowBox> laid_out_;
  std::size_t waiting_ = 0;  // the first of those laid out that hasn't been in hand
  bool is_fresh_ = false;    // nothing stands in the column but heads
};

// How many rows at the beginning of the table are its head.
std::size_t HeadRows(const richtext::Table& table);

}  // namespace tarnwell::print
