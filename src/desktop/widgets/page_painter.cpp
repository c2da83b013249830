#include "desktop/widgets/page_painter.h"

#include <QFontMetricsF>
#include <QImage>

#include "desktop/widgets/look.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr double kLineWidth = 10;  // twips

QPen PenOf(forms::Color color) { return {ToQColor(color), kLineWidth}; }

}  // namespace

PagePainter::PagePainter(const forms::Document& document, const PictureStore& pictures)
    : document_(document), pictures_(pictures) {
  for (const forms::Font& font : document.fonts) {
    const QFont face = PageFont(font);
    faces_.push_back({face, ToQColor(font.color), QFontMetricsF(face).ascent()});
  }
}

void PagePainter::Paint(QPainter& painter, int page) {
  if (page < 0 || page >= static_cast<int>(document_.pages.size())) return;
  for (const forms::Mark& mark : document_.pages[static_cast<std::size_t>(page)]) {
    std::visit([&](const auto& one) { PaintMark(painter, one); }, mark);
  }
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedText& text) {
  const auto place = static_cast<std::size_t>(text.font);
  if (place >= faces_.size()) return;
  const Face& face = faces_[place];
  painter.setFont(face.font);
  painter.setPen(face.color);
  painter.drawText(QPointF(text.x, text.y + face.ascent), FromCore(text.text));
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedLine& line) {
  painter.setPen(PenOf(line.color));
  painter.drawLine(line.x1, line.y1, line.x2, line.y2);
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedBox& box) {
  painter.setPen(box.edge ? PenOf(*box.edge) : QPen(Qt::NoPen));
  painter.setBrush(box.fill ? QBrush(ToQColor(*box.fill)) : QBrush(Qt::NoBrush));
  painter.drawRect(box.x, box.y, box.width, box.height);
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedPicture& picture) {
  const QImage image = QImage::fromData(pictures_.Read(picture.file));
  if (image.isNull()) return;
  const QRectF box(picture.x, picture.y, picture.width, picture.height);
  QRectF place({}, QSizeF(image.size()).scaled(box.size(), Qt::KeepAspectRatio));
  place.moveCenter(box.center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, image);
}

}  // namespace tarnwell::desktop
