// Widths of columns, by dragging the border between two of them.

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/table_parts.h"
#include "richtext/column_edges.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

constexpr double kReach = 2.5;  // pixels from a border

}  // namespace

// The right border of the cell under the pointer, or its left one, which is another's right.
std::optional<RichTextView::ColumnEdge> RichTextView::EdgeAt(QPoint place) const {
  if (!box_is_there_.Connected() || box_.locked()) return std::nullopt;
  const double x = place.x() + horizontalScrollBar()->value();
  const QTextCursor cursor = cursorForPosition(place);
  QTextTable* const table = cursor.currentTable();
  if (table == nullptr) return std::nullopt;
  const QRectF frame = document()->documentLayout()->frameBoundingRect(table);
  const double y = place.y() + verticalScrollBar()->value();
  if (y < frame.top() || y > frame.bottom()) return std::nullopt;
  const int paragraph = renderer_.ParagraphOf(cursor.block());
  std::size_t block = richtext::FindPlace(box_.document(), paragraph).block;
  while (block > 0 && std::holds_alternative<richtext::Table>(box_.document().blocks[block - 1])) {
    --block;
  }
  const richtext::TableGrid grid = richtext::GridOf(TablesAt(box_.document(), block).rows);
  const QTextTableCell cell = table->cellAt(cursor);
  const auto left_of = [this](const QTextTableCell& of) {
    const QTextBlock first = of.firstCursorPosition().block();
    return document()->documentLayout()->blockBoundingRect(first).left() -
           of.format().toTableCellFormat().leftPadding();
  };
  int edge = grid.left_edge;
  for (int column = 1; column <= static_cast<int>(grid.widths.size()); ++column) {
    edge += grid.widths[static_cast<std::size_t>(column) - 1];
    const bool is_left = column == cell.column();
    if (!is_left && column != cell.column() + cell.columnSpan()) continue;
    const double border = column == table->columns() ? frame.right()
                          : is_left                  ? left_of(cell)
                                                     : left_of(table->cellAt(cell.row(), column));
    if (std::abs(x - border) <= kReach) return ColumnEdge{paragraph, edge, border};
  }
  return std::nullopt;
}

void RichTextView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (dragged_edge_) {
    dragged_to_ = place.x() + horizontalScrollBar()->value();
    return viewport()->update();
  }
  if (event->buttons() == Qt::NoButton) {
    const bool is_at_edge = EdgeAt(place).has_value();
    viewport()->setCursor(is_at_edge ? Qt::SplitHCursor : Qt::IBeamCursor);
    if (is_at_edge) return;
  }
  QTextEdit::mouseMoveEvent(event);
}

void RichTextView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) dragged_edge_ = EdgeAt(event->position().toPoint());
  if (!dragged_edge_) return QTextEdit::mousePressEvent(event);
  dragged_to_ = dragged_edge_->x;
}

void RichTextView::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragged_edge_) return QTextEdit::mouseReleaseEvent(event);
  const ColumnEdge edge = *std::exchange(dragged_edge_, std::nullopt);
  viewport()->update();
  const double moved = dragged_to_ - edge.x;
  if (!box_is_there_.Connected() || std::abs(moved) < 1) return;
  const int to = edge.place + static_cast<int>(std::lround(moved / Formats().Pixels(1)));
  box_.MoveColumnEdge(edge.paragraph, edge.place, to);
}

void RichTextView::PaintDraggedEdge(QPainter& painter) {
  if (!dragged_edge_) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  const double top = verticalScrollBar()->value();
  painter.drawLine(QLineF(dragged_to_, top, dragged_to_, top + viewport()->height()));
}

}  // namespace tarnwell::desktop
