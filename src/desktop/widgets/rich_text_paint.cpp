// What a RichTextView paints beside Qt's text: markers of lists and breaks of pages.

#include <QAbstractTextDocumentLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/rich_text_visible.h"

namespace tarnwell::desktop {
namespace {

const QColor kBreakColor{0x8A, 0x94, 0x9E};

bool HasExtras(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  return format.hasProperty(kMarkerProperty) || format.hasProperty(kPageBreakBeforeProperty) ||
         format.hasProperty(kPageBreakBehindProperty) ||
         block.text().contains(QChar::LineSeparator);
}

}  // namespace

void RichTextView::paintEvent(QPaintEvent* event) {
  {
    const QScopedValueRollback<bool> painting(is_painting_, true);
    QTextEdit::paintEvent(event);
  }
  QPainter painter(viewport());
  painter.setClipRect(event->rect());
  painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  const double top = verticalScrollBar()->value() + event->rect().top();
  const QTextCursor first = cursorForPosition(QPoint(0, event->rect().top()));
  const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
  for (const QTextBlock& block : BlocksBetween(top, top + event->rect().height(), first, layout)) {
    if (!HasExtras(block)) continue;
    const QPointF origin = layout.blockBoundingRect(block).topLeft();
    PaintMarker(painter, block, origin);
    PaintPageBreaks(painter, block, origin);
  }
}

void RichTextView::PaintMarker(QPainter& painter, const QTextBlock& block, QPointF origin) {
  const QTextBlockFormat format = block.blockFormat();
  if (!format.hasProperty(kMarkerProperty) || block.layout()->lineCount() == 0) return;
  const QTextCharFormat look = block.charFormat();
  QFont font(look.font(), viewport());
  font.setUnderline(false);
  painter.setFont(font);
  const bool has_color = look.hasProperty(QTextFormat::ForegroundBrush);
  painter.setPen(has_color ? look.foreground().color() : palette().color(QPalette::Text));
  const QTextLine line = block.layout()->lineAt(0);
  const double offset = format.doubleProperty(kMarkerPlaceProperty) - format.textIndent();
  const double shift = line.naturalTextRect().left() - line.x();
  painter.drawText(origin + QPointF(line.x() + shift + offset, line.y() + line.ascent()),
                   format.stringProperty(kMarkerProperty));
}

void RichTextView::PaintPageBreaks(QPainter& painter, const QTextBlock& block, QPointF origin) {
  painter.setPen(QPen(kBreakColor, 1, Qt::DashLine));
  const double margin = document()->documentMargin() / 2;
  const double right = document()->size().width() - margin;
  const auto draw = [&](double y) { painter.drawLine(QPointF(margin, y), QPointF(right, y)); };
  const QTextLayout& layout = *block.layout();
  const QRectF lines = layout.boundingRect().translated(origin);
  if (block.blockFormat().boolProperty(kPageBreakBeforeProperty)) draw(lines.top() - 1);
  if (block.blockFormat().boolProperty(kPageBreakBehindProperty)) draw(lines.bottom() + 1);
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    if (!fragment.charFormat().boolProperty(kPageBreakProperty)) continue;
    for (int i = 0; i < fragment.length(); ++i) {
      const QTextLine line = layout.lineForTextPosition(fragment.position() - block.position() + i);
      if (line.isValid()) draw(origin.y() + line.y() + line.height());
    }
  }
}

}  // namespace tarnwell::desktop
