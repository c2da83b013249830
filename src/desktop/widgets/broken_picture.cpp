#include "desktop/widgets/broken_picture.h"

#include <algorithm>

namespace tarnwell::desktop {

void PaintBrokenPicture(QPainter& painter, const QRectF& place) {
  const double line = std::min(place.width(), place.height()) / 16;
  const QRectF frame = place.adjusted(line, line, -line, -line);
  painter.fillRect(place, QColor(0xF4, 0xF5, 0xF6));
  painter.setPen(QPen(QColor(0x8A, 0x92, 0x9A), line));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(frame);
  painter.drawLine(frame.topLeft(), frame.bottomRight());
  painter.drawLine(frame.bottomLeft(), frame.topRight());
}

}  // namespace tarnwell::desktop
