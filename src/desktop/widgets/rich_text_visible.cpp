#include "desktop/widgets/rich_text_visible.h"

#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <ranges>

namespace tarnwell::desktop {
namespace {

class Collector {
 public:
  Collector(double top, double bottom, const QAbstractTextDocumentLayout& layout)
      : top_(top), bottom_(bottom), layout_(layout) {}

  // False when all that follows stands below.
  bool Take(const QTextBlock& block) {
    const QRectF place = layout_.blockBoundingRect(block);
    if (place.top() > bottom_) return false;
    blocks_.push_back(block);
    return true;
  }

  // A place between two rows isn't found by its height; the rows are.
  int FirstRow(const QTextTable& table) const {
    const auto begins_above = [&](int row) {
      return layout_.blockBoundingRect(table.cellAt(row, 0).firstCursorPosition().block()).top() <
             top_;
    };
    const int row = *std::ranges::partition_point(std::views::iota(0, table.rows()), begins_above);
    return std::max(0, row - 1);
  }

  bool TakeRow(const QTextTable& table, int row) {
    bool has_any = false;
    for (int column = 0; column < table.columns();) {
      const QTextTableCell cell = table.cellAt(row, column);
      if (TakeCell(cell, *table.document())) has_any = true;
      column = cell.column() + std::max(1, cell.columnSpan());
    }
    return has_any;
  }

  std::vector<QTextBlock> Blocks() && { return std::move(blocks_); }

 private:
  bool TakeCell(const QTextTableCell& cell, const QTextDocument& document) {
    const int first = cell.firstCursorPosition().block().blockNumber();
    const int last = cell.lastCursorPosition().block().blockNumber();
    const auto stands_above = [&](int number) {
      return layout_.blockBoundingRect(document.findBlockByNumber(number)).bottom() < top_;
    };
    const int begin = *std::ranges::partition_point(std::views::iota(first, last), stands_above);
    int number = begin;
    while (number <= last && Take(document.findBlockByNumber(number))) ++number;
    return number > first;
  }

  const double top_;
  const double bottom_;
  const QAbstractTextDocumentLayout& layout_;
  std::vector<QTextBlock> blocks_;
};

}  // namespace

std::vector<QTextBlock> BlocksBetween(double top, double bottom, const QTextCursor& first,
                                      const QAbstractTextDocumentLayout& layout) {
  Collector blocks(top, bottom, layout);
  for (QTextCursor cursor = first; !cursor.isNull();) {
    if (const QTextTable* const table = cursor.currentTable()) {
      int row = blocks.FirstRow(*table);
      while (row < table->rows() && blocks.TakeRow(*table, row)) ++row;
      if (row < table->rows()) break;
      cursor.setPosition(table->lastPosition() + 1);
      continue;
    }
    if (!blocks.Take(cursor.block())) break;
    if (!cursor.movePosition(QTextCursor::NextBlock)) break;
  }
  return std::move(blocks).Blocks();
}

}  // namespace tarnwell::desktop
