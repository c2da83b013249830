#pragma once

#include <span>

#include "print/rich_cell.h"

namespace tarnwell::print {

// A row of a document's table. A row that doesn't fit in what is left of the column begins the next
// one, unless it is taller than a column: then it is parted between lines. A row that is wider than
// the column is narrowed.
class RichRow {
 public:
  // Needs the row to stay.
  RichRow(PageEngine& engine, RichStyles& styles, const richtext::TableRow& row);

  int height() const;
  // At the engine's position. `heads` come again above what begins another column.
  void Place(std::span<const richtext::TableRow> heads);

 private:
  void LayOut();
  void BeginColumn(std::span<const richtext::TableRow> heads);
  bool HasRoomForALine(int room) const;
  bool IsDone() const;
  void PlaceWhole(int height);
  void PlacePart(int room);

  PageEngine& engine_;
  RichStyles& styles_;
  const richtext::TableRow& row_;
  int least_height_ = 0;
  bool is_fresh_ = false;  // nothing stands in the column but heads
  std::vector<RichCell> cells_;
};

// How many rows at the beginning of the table are its head.
std::size_t HeadRows(const richtext::Table& table);

}  // namespace tarnwell::print
