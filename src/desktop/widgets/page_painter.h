#pragma once

#include <QFont>
#include <QPainter>
#include <vector>

#include "forms/page.h"

namespace tarnwell::desktop {

QString TextOf(const forms::PlacedText& text);

// Paints the pages of a document wherever they are seen: in the preview, on paper, in a PDF and on
// the clipboard. The painter's unit is a twip; the paper itself isn't painted. Needs the document
// to stay.
class PagePainter {
 public:
  explicit PagePainter(const forms::Document& document);

  // Counted from 0; nothing where there is no such page.
  void Paint(QPainter& painter, int page);

 private:
  struct Face {
    QFont font;
    QColor color;
    double ascent = 0;  // from a line's top to the letters' base
  };

  void PaintMark(QPainter& painter, const forms::PlacedText& text);
  void PaintMark(QPainter& painter, const forms::PlacedLine& line);
  void PaintMark(QPainter& painter, const forms::PlacedBox& box);
  void PaintMark(QPainter& painter, const forms::PlacedPicture& picture);
  void PaintMark(QPainter& painter, const forms::PlacedImage& picture);
  void PaintMark(QPainter& painter, const forms::PlacedChart& chart);

  const forms::Document& document_;
  std::vector<Face> faces_;  // of Document::fonts
};

}  // namespace tarnwell::desktop
