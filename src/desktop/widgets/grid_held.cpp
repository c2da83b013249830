// The columns of a grid that stay at the left: where they lie and how they are painted over the
// others. Only where the grid is scrolled sideways do they differ from Qt's own.

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include "desktop/widgets/grid_view.h"

namespace tarnwell::desktop {

QRect GridView::visualRect(const QModelIndex& index) const {
  QRect rect = QTableView::visualRect(index);
  if (index.column() < header_->held() && header_->HeldWidth() > 0) {
    rect.moveLeft(header_->WidthOfFirst(index.column()));
  }
  return rect;
}

QModelIndex GridView::indexAt(const QPoint& point) const {
  if (point.x() >= header_->HeldWidth()) return QTableView::indexAt(point);
  int column = 0;
  while (header_->WidthOfFirst(column + 1) <= point.x()) ++column;
  return model_.index(rowAt(point.y()), column);
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int width = header_->HeldWidth();
  if (width == 0) return QTableView::scrollTo(index, hint);
  if (index.column() < header_->held()) {
    return QTableView::scrollTo(index.siblingAtColumn(columnAt(width)), hint);
  }
  QTableView::scrollTo(index, hint);
  const int covered = header_->HeldWidth() - columnViewportPosition(index.column());
  if (covered > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
}

void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  // What stays where it is can't be shifted along with the old picture.
  const bool is_held = dx != 0 && header_->held() > 0;
  if (is_held) header_->viewport()->update();
  if (is_held || !look_.wallpaper.empty()) viewport()->update();
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  const QRect held(0, 0, header_->HeldWidth(), viewport()->height());
  if (held.intersects(event->rect())) PaintHeld(held & event->rect());
}

void GridView::PaintHeld(const QRect& area) {
  QPainter painter(viewport());
  painter.setClipRect(area);
  painter.fillRect(area, viewport()->palette().brush(QPalette::Base));
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int lines = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
  painter.setPen(QColor::fromRgba(static_cast<QRgb>(lines)));
  const QStyle::State usual = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
  for (int row = rowAt(area.top()); row >= 0 && row < model_.rowCount(); ++row) {
    if (rowViewportPosition(row) > area.bottom()) break;
    for (int column = 0; column < header_->held(); ++column) {
      const QModelIndex index = model_.index(row, column);
      option.rect = visualRect(index);
      option.state = usual;
      if (selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
      if (index == currentIndex() && hasFocus()) option.state |= QStyle::State_HasFocus;
      itemDelegate()->paint(&painter, option, index);
      const QRect cell = option.rect.adjusted(0, 0, 1, 1);
      painter.drawLine(cell.topRight(), cell.bottomRight());
      painter.drawLine(cell.bottomLeft(), cell.bottomRight());
    }
  }
}

}  // namespace tarnwell::desktop
