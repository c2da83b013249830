#include "desktop/widgets/page_painter.h"

#include <QFontMetricsF>
#include <QImage>

#include "desktop/widgets/broken_picture.h"
#include "desktop/widgets/chart_drawing.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/machine_pictures.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/picture_files.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr double kBoxLine = 10;  // twips
// A PDF file counts finer than any printer prints a picture.
constexpr double kMostDotsPerTwip = 300.0 / forms::kTwipsPerInch;

constexpr double kChartLetters = 8 * 20;  // twips

constexpr int kWaveHeight = 30;  // twips; half as long as a wave

Qt::PenStyle StyleOf(forms::PlacedLine::Pattern pattern) {
  switch (pattern) {
    case forms::PlacedLine::Pattern::kDots:
      return Qt::DotLine;
    case forms::PlacedLine::Pattern::kDashes:
      return Qt::DashLine;
    case forms::PlacedLine::Pattern::kDashDot:
      return Qt::DashDotLine;
    case forms::PlacedLine::Pattern::kDashDotDot:
      return Qt::DashDotDotLine;
    default:
      return Qt::SolidLine;
  }
}

// Level lines only: they stand below letters.
void PaintWave(QPainter& painter, const forms::PlacedLine& line) {
  QPolygon wave;
  bool is_high = false;
  for (int x = line.x1; x <= line.x2; x += kWaveHeight, is_high = !is_high) {
    wave << QPoint(x, line.y1 + (is_high ? kWaveHeight : 0));
  }
  painter.drawPolyline(wave);
}

// No more of a picture than is seen.
QSize PixelsSeen(const QPainter& painter, const QRectF& place) {
  const QSizeF seen = painter.deviceTransform().mapRect(place).size();
  return seen.boundedTo(place.size() * kMostDotsPerTwip).toSize();
}

// Signs and drawings keep their edges in a PDF; photographs have none to lose.
void DrawImage(QPainter& painter, const QRectF& place, const QImage& image, bool keeps_edges) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setRenderHint(QPainter::LosslessImageRendering, keeps_edges);
  painter.drawImage(place, image);
}

}  // namespace

QString TextOf(const forms::PlacedText& text) {
  if (!text.utf8) return FromCore(text.text);
  return QString::fromUtf8(text.text.data(), static_cast<qsizetype>(text.text.size()));
}

PagePainter::PagePainter(const forms::Document& document) : document_(document) {
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
  if (text.stretch == 0) {
    painter.setFont(face.font);
  } else {
    QFont stretched = face.font;
    stretched.setWordSpacing(static_cast<double>(text.stretch));
    painter.setFont(stretched);
  }
  painter.setPen(face.color);
  painter.drawText(QPointF(text.x, text.y + face.ascent), TextOf(text));
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedLine& line) {
  QPen pen(ToQColor(line.color), line.width, StyleOf(line.pattern), Qt::FlatCap);
  painter.setPen(pen);
  if (line.pattern == forms::PlacedLine::Pattern::kWave) return PaintWave(painter, line);
  painter.drawLine(line.x1, line.y1, line.x2, line.y2);
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedBox& box) {
  painter.setPen(box.edge ? QPen(ToQColor(*box.edge), kBoxLine) : QPen(Qt::NoPen));
  painter.setBrush(box.fill ? QBrush(ToQColor(*box.fill)) : QBrush(Qt::NoBrush));
  painter.drawRect(box.x, box.y, box.width, box.height);
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedPicture& picture) {
  const QRectF box(picture.x, picture.y, picture.width, picture.height);
  const MachinePicture read = ReadMachinePicture(picture.path, PixelsSeen(painter, box));
  if (read.image.isNull()) return;
  QRectF place({}, QSizeF(read.whole).scaled(box.size(), Qt::KeepAspectRatio));
  place.moveCenter(box.center());
  DrawImage(painter, place, read.image, read.type != "jpeg");
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedImage& picture) {
  if (!picture.bytes) return;
  const QRectF place(picture.x, picture.y, picture.width, picture.height);
  const QImage image = Decoded(
      QByteArray::fromRawData(picture.bytes->data(), static_cast<qsizetype>(picture.bytes->size())),
      PixelsSeen(painter, place));
  if (image.isNull()) return PaintBrokenPicture(painter, place);
  DrawImage(painter, place, image, picture.bytes->starts_with("\x89PNG"));
}

void PagePainter::PaintMark(QPainter& painter, const forms::PlacedChart& chart) {
  if (!chart.picture) return;
  ChartDrawing::Paint(painter, QRectF(chart.x, chart.y, chart.width, chart.height), *chart.picture,
                      kChartLetters);
}

}  // namespace tarnwell::desktop
