// What a RichTextView paints beside Qt's text.

#include <QAbstractTextDocumentLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>

#include "desktop/widgets/rich_text_extras.h"
#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/rich_text_visible.h"

namespace tarnwell::desktop {
namespace {

const QColor kBreakColor{0x8A, 0x94, 0x9E};

bool BreaksPage(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  return format.hasProperty(kPageBreakBeforeProperty) ||
         format.hasProperty(kPageBreakBehindProperty) ||
         block.text().contains(QChar::LineSeparator);
}

}  // namespace

void RichTextView::paintEvent(QPaintEvent* event) {
  const QScopedValueRollback<bool> painting(is_painting_, true);
  const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
  const double top = verticalScrollBar()->value() + event->rect().top();
  const double bottom = top + event->rect().height();
  const QTextCursor first = cursorForPosition(QPoint(0, event->rect().top()));
  const std::vector<QTextBlock> blocks = BlocksBetween(top, bottom, first, layout);
  const RichTextExtras extras(layout, blocks);
  const auto begin = [&](QPainter& painter) {
    painter.setClipRect(event->rect());
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  };
  {
    QPainter painter(viewport());
    begin(painter);
    extras.PaintBelow(painter);
  }
  QTextEdit::paintEvent(event);
  QPainter painter(viewport());
  begin(painter);
  extras.PaintAbove(painter, palette().color(QPalette::Text));
  for (const QTextBlock& block : blocks) {
    if (BreaksPage(block)) {
      PaintPageBreaks(painter, block, layout.blockBoundingRect(block).topLeft());
    }
  }
  if (shows_pages()) PaintSheets(painter, top, bottom);
  PaintDraggedEdge(painter);
  PaintFurniture(painter, top, bottom);
}

void RichTextView::PaintPageBreaks(QPainter& painter, const QTextBlock& block, QPointF origin) {
  painter.setPen(QPen(kBreakColor, 1, Qt::DashLine));
  const double margin = document()->rootFrame()->frameFormat().leftMargin() / 2;
  const double right = document()->pageSize().width() - margin;
  const auto draw = [&](double y) { painter.drawLine(QPointF(margin, y), QPointF(right, y)); };
  const QTextLayout& layout = *block.layout();
  const QRectF lines = layout.boundingRect().translated(origin);
  const QTextBlockFormat format = block.blockFormat();
  if (!shows_pages() && format.boolProperty(kPageBreakBeforeProperty)) draw(lines.top() - 1);
  if (!shows_pages() && format.boolProperty(kPageBreakBehindProperty)) draw(lines.bottom() + 1);
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
