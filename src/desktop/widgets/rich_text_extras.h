// What Qt's text doesn't show of a document's look: frames of paragraphs, leaders of tab stops,
// underlines of other kinds, markers of lists.

#pragma once

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <vector>

#include "desktop/widgets/rich_text_formats.h"

namespace tarnwell::desktop {

class RichTextExtras {
 public:
  // Of these blocks, which are laid out. The painter's unit is a pixel of the text.
  RichTextExtras(const QAbstractTextDocumentLayout& layout, const std::vector<QTextBlock>& blocks);

  // What lies under the letters, and what doesn't; `ink` is that of text without a colour.
  void PaintBelow(QPainter& painter) const;
  void PaintAbove(QPainter& painter, const QColor& ink) const;

 private:
  struct Framed {
    ShownFrame frame;
    QRectF place;
    bool begins = true;
    bool ends = true;
  };

  Framed FrameOf(const QTextBlock& block) const;
  // The place of the block's text.
  QPointF OriginOf(const QTextBlock& block) const;
  void PaintMarker(QPainter& painter, const QTextBlock& block, const QColor& ink) const;
  void PaintLeaders(QPainter& painter, const QTextBlock& block, const QColor& ink) const;
  void PaintUnderlines(QPainter& painter, const QTextBlock& block, const QColor& ink) const;

  const QAbstractTextDocumentLayout& layout_;
  std::vector<QTextBlock> blocks_;  // those that have any
  std::vector<Framed> frames_;
};

}  // namespace tarnwell::desktop
