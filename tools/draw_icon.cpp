// Draws an icon of a drawing: draw-icon data/tarnwell.svg 48 48x48.png
//
// The build calls it for each size that desktops ask for.

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
  const int side = argc == 4 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;  // pixels
  if (side < 1) {
    std::fputs("usage: draw-icon DRAWING SIDE ICON\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  QImage icon(side, side, QImage::Format_ARGB32);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  drawing.render(&painter);
  painter.end();
  if (drawing.isValid() && icon.save(QString::fromLocal8Bit(argv[3]))) return 0;
  std::fprintf(stderr, "draw-icon: can't make %s of %s\n", argv[3], argv[1]);
  return 1;
}
