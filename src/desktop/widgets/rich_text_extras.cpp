#include "desktop/widgets/rich_text_extras.h"

#include <QFontMetricsF>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <optional>

namespace tarnwell::desktop {
namespace {

using Leader = richtext::TabStop::Leader;
using richtext::Underline;

QColor InkOf(const QTextCharFormat& format, const QColor& usual) {
  return format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color() : usual;
}

int CellOf(const QTextBlock& block) {
  const QTextCursor cursor(block);
  const QTextTable* const table = cursor.currentTable();
  return table == nullptr ? -1 : table->cellAt(cursor).firstPosition();
}

// Whether one frame stands around both.
bool AreJoined(const QTextBlock& first, const QTextBlock& second) {
  if (!first.isValid() || !second.isValid()) return false;
  const QTextBlockFormat a = first.blockFormat();
  const QTextBlockFormat b = second.blockFormat();
  return a.hasProperty(kFrameProperty) &&
         a.property(kFrameProperty) == b.property(kFrameProperty) &&
         a.leftMargin() == b.leftMargin() && a.rightMargin() == b.rightMargin() &&
         CellOf(first) == CellOf(second);
}

void PaintLine(QPainter& painter, const ShownFrame::Side& side, const QLineF& line) {
  if (side.width <= 0) return;
  painter.setPen(QPen(side.color, side.width, side.style, Qt::FlatCap));
  painter.drawLine(line);
  if (!side.is_double) return;
  const double off = 2 * side.width;
  const bool is_level = line.dy() == 0;
  painter.drawLine(line.translated(is_level ? 0 : off, is_level ? off : 0));
}

// The sign that a leader repeats; empty for one that is drawn.
QString SignOf(Leader leader) {
  switch (leader) {
    case Leader::kDots:
      return QStringLiteral(".");
    case Leader::kMiddleDots:
      return QStringLiteral("\u00B7");
    case Leader::kHyphens:
      return QStringLiteral("-");
    case Leader::kEquals:
      return QStringLiteral("=");
    default:
      return {};
  }
}

struct UnderlineLook {
  Qt::PenStyle style = Qt::SolidLine;
  double width = 1;
  int lines = 1;
  bool is_wave = false;
};

UnderlineLook LookOf(Underline underline) {
  switch (underline) {
    case Underline::kDouble:
      return {.lines = 2};
    case Underline::kThick:
      return {.width = 2};
    case Underline::kLongDash:
      return {.style = Qt::CustomDashLine};
    case Underline::kThickLongDash:
      return {Qt::CustomDashLine, 2};
    case Underline::kThickDotted:
      return {Qt::DotLine, 2};
    case Underline::kThickDash:
      return {Qt::DashLine, 2};
    case Underline::kThickDashDot:
      return {Qt::DashDotLine, 2};
    case Underline::kThickDashDotDot:
      return {Qt::DashDotDotLine, 2};
    case Underline::kHeavyWave:
      return {.width = 2, .is_wave = true};
    case Underline::kDoubleWave:
      return {.lines = 2, .is_wave = true};
    default:
      return {};
  }
}

void PaintWave(QPainter& painter, double left, double right, double y) {
  constexpr double kHalf = 2;
  QPolygonF wave;
  for (double x = left; x <= right; x += kHalf) {
    wave << QPointF(x, y + (wave.size() % 2 == 0 ? kHalf / 2 : -kHalf / 2));
  }
  painter.drawPolyline(wave);
}

void PaintUnderline(QPainter& painter, Underline underline, const QColor& ink, double scale,
                    double left, double right, double y) {
  const UnderlineLook look = LookOf(underline);
  QPen pen(ink, std::max(1.0, look.width * scale), look.style, Qt::FlatCap);
  if (look.style == Qt::CustomDashLine) pen.setDashPattern({8, 4});
  painter.setPen(pen);
  for (int i = 0; i < look.lines; ++i) {
    const double at = y + i * (look.is_wave ? 3 : 2) * pen.widthF();
    if (look.is_wave) {
      PaintWave(painter, left, right, at);
    } else {
      painter.drawLine(QLineF(left, at, right, at));
    }
  }
}

// The leader of the stop to which a tab goes that begins `begin` behind the margin. `stops` holds
// each one's place and leader.
Leader LeaderAt(const QVariantList& stops, double begin) {
  qsizetype stop = 0;
  while (stop + 2 < stops.size() && stops[stop].toDouble() <= begin + 0.5) stop += 2;
  return static_cast<Leader>(stops[stop + 1].toInt());
}

// In the painter's pen and font, on the line that begins there.
void PaintLeader(QPainter& painter, Leader leader, const QPointF& line, double begin, double end) {
  const QString sign = SignOf(leader);
  if (sign.isEmpty()) {
    painter.drawLine(line + QPointF(begin, 2), line + QPointF(end, 2));
    return;
  }
  // The signs stand at multiples of their width, so that they form columns over several lines.
  const double width = QFontMetricsF(painter.font()).horizontalAdvance(sign);
  if (width <= 0) return;
  for (double x = std::ceil(begin / width) * width; x + width <= end; x += width) {
    painter.drawText(line + QPointF(x, 0), sign);
  }
}

// Of the word that `begin` is in, or of the blanks.
int EndOfWord(const QString& text, int begin, int end) {
  const bool is_blank = text[begin].isSpace();
  int next = begin;
  while (next < end && text[next].isSpace() == is_blank) ++next;
  return next;
}

bool HasExtras(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  if (format.hasProperty(kMarkerProperty) || format.hasProperty(kLeadersProperty)) return true;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    if (part.fragment().charFormat().hasProperty(kUnderlineProperty)) return true;
  }
  return false;
}

}  // namespace

RichTextExtras::RichTextExtras(const QAbstractTextDocumentLayout& layout,
                               const std::vector<QTextBlock>& blocks)
    : layout_(layout) {
  for (const QTextBlock& block : blocks) {
    if (!block.isVisible() || block.layout()->lineCount() == 0) continue;
    if (HasExtras(block)) blocks_.push_back(block);
    if (block.blockFormat().hasProperty(kFrameProperty)) frames_.push_back(FrameOf(block));
  }
}

QPointF RichTextExtras::OriginOf(const QTextBlock& block) const {
  return layout_.blockBoundingRect(block).topLeft();
}

RichTextExtras::Framed RichTextExtras::FrameOf(const QTextBlock& block) const {
  Framed framed;
  framed.frame = ShownFrame::Of(block.blockFormat());
  const auto& [top, left, bottom, right, between] = framed.frame.sides;
  const QTextLayout& text = *block.layout();
  const QTextLine first = text.lineAt(0);
  double begin = first.x();
  if (block.blockFormat().hasProperty(kMarkerProperty)) {
    begin +=
        block.blockFormat().doubleProperty(kMarkerPlaceProperty) - block.blockFormat().textIndent();
  }
  if (text.lineCount() > 1) begin = std::min(begin, text.lineAt(1).x());
  const QRectF lines = text.boundingRect().translated(OriginOf(block));
  const double x = OriginOf(block).x();
  framed.begins = !AreJoined(block.previous(), block);
  framed.ends = !AreJoined(block, block.next());
  double above = lines.top() - (top.width > 0 ? top.distance + top.width / 2 : 0);
  if (!framed.begins) {
    const QTextBlock previous = block.previous();
    above = OriginOf(previous).y() + previous.layout()->boundingRect().bottom();
  }
  const bool has_line = framed.ends && bottom.width > 0;
  const double below = lines.bottom() + (has_line ? bottom.distance + bottom.width / 2 : 0);
  framed.place = QRectF(QPointF(x + begin - left.distance, above),
                        QPointF(x + first.x() + first.width() + right.distance, below));
  return framed;
}

void RichTextExtras::PaintBelow(QPainter& painter) const {
  for (const Framed& framed : frames_) {
    if (framed.frame.fill.isValid()) painter.fillRect(framed.place, framed.frame.fill);
  }
}

void RichTextExtras::PaintAbove(QPainter& painter, const QColor& ink) const {
  for (const Framed& framed : frames_) {
    const auto& [top, left, bottom, right, between] = framed.frame.sides;
    const QRectF& place = framed.place;
    PaintLine(painter, framed.begins ? top : between, QLineF(place.topLeft(), place.topRight()));
    PaintLine(painter, left, QLineF(place.topLeft(), place.bottomLeft()));
    PaintLine(painter, right, QLineF(place.topRight(), place.bottomRight()));
    if (framed.ends) PaintLine(painter, bottom, QLineF(place.bottomLeft(), place.bottomRight()));
  }
  for (const QTextBlock& block : blocks_) {
    PaintMarker(painter, block, ink);
    PaintLeaders(painter, block, ink);
    PaintUnderlines(painter, block, ink);
  }
}

void RichTextExtras::PaintMarker(QPainter& painter, const QTextBlock& block,
                                 const QColor& ink) const {
  const QTextBlockFormat format = block.blockFormat();
  if (!format.hasProperty(kMarkerProperty)) return;
  const QTextCharFormat look = block.charFormat();
  QFont font(look.font(), painter.device());
  font.setUnderline(false);
  painter.setFont(font);
  painter.setPen(InkOf(look, ink));
  const QTextLine line = block.layout()->lineAt(0);
  const double offset = format.doubleProperty(kMarkerPlaceProperty) - format.textIndent();
  const double shift = line.naturalTextRect().left() - line.x();
  painter.drawText(OriginOf(block) + QPointF(line.x() + shift + offset, line.y() + line.ascent()),
                   format.stringProperty(kMarkerProperty));
}

// A leader goes from where the tab begins to where what follows begins.
void RichTextExtras::PaintLeaders(QPainter& painter, const QTextBlock& block,
                                  const QColor& ink) const {
  const QVariantList stops = block.blockFormat().property(kLeadersProperty).toList();
  if (stops.isEmpty()) return;
  const QString text = block.text();
  for (qsizetype at = text.indexOf(QLatin1Char('\t')); at >= 0;
       at = text.indexOf(QLatin1Char('\t'), at + 1)) {
    const int place = static_cast<int>(at);
    const QTextLine line = block.layout()->lineForTextPosition(place);
    if (!line.isValid()) continue;
    const double begin = line.cursorToX(place);
    const double length = line.cursorToX(place + 1) - begin;
    const Leader leader = LeaderAt(stops, begin - block.blockFormat().leftMargin());
    if (leader == Leader::kNone || length < 2) continue;
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + place + 1);
    const QTextCharFormat look = cursor.charFormat();
    painter.setPen(QPen(InkOf(look, ink), leader == Leader::kThick ? 2 : 1));
    painter.setFont(QFont(look.font(), painter.device()));
    const QPointF line_begin = OriginOf(block) + QPointF(0, line.y() + line.ascent());
    PaintLeader(painter, leader, line_begin, begin, begin + length);
  }
}

void RichTextExtras::PaintUnderlines(QPainter& painter, const QTextBlock& block,
                                     const QColor& ink) const {
  const QPointF origin = OriginOf(block);
  const QString text = block.text();
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const QTextCharFormat look = fragment.charFormat();
    if (!look.hasProperty(kUnderlineProperty)) continue;
    const auto underline = static_cast<Underline>(look.intProperty(kUnderlineProperty));
    const double scale = std::max(1.0, look.fontPointSize() / 12);
    int place = fragment.position() - block.position();
    const int end = place + fragment.length();
    while (place < end) {
      const QTextLine line = block.layout()->lineForTextPosition(place);
      const int begin = place;
      if (line.isValid()) place = std::min(end, line.textStart() + line.textLength());
      if (place <= begin) break;
      if (underline == Underline::kWords) {
        place = EndOfWord(text, begin, place);
        if (text[begin].isSpace()) continue;
      }
      const auto [left, right] = std::minmax({line.cursorToX(begin), line.cursorToX(place)});
      const double y = origin.y() + line.y() + line.ascent() + 2 * scale;
      PaintUnderline(painter, underline, InkOf(look, ink), scale, origin.x() + left,
                     origin.x() + right, y);
    }
  }
}

}  // namespace tarnwell::desktop
