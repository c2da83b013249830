#include "desktop/widgets/grid_header.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace tarnwell::desktop {

int GridHeader::WidthOfFirst(int columns) const {
  int width = 0;
  for (int i = 0; i < columns; ++i) width += sectionSize(i);
  return width;
}

int GridHeader::HeldWidth() const {
  const int width = offset() > 0 ? WidthOfFirst(held_) : 0;
  return width <= viewport()->width() * 2 / 3 ? width : 0;
}

void GridHeader::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  const int width = HeldWidth();
  if (width == 0) return;
  QPainter painter(viewport());
  painter.setClipRect(event->rect() & QRect(0, 0, width, height()));
  for (int i = 0; i < held_; ++i) {
    painter.save();
    paintSection(&painter, QRect(WidthOfFirst(i), 0, sectionSize(i), viewport()->height()), i);
    painter.restore();
  }
}

// What lies below a held heading can't be clicked or dragged.
void GridHeader::mousePressEvent(QMouseEvent* event) {
  if (event->pos().x() >= HeldWidth()) return QHeaderView::mousePressEvent(event);
}

}  // namespace tarnwell::desktop
