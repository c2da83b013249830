#include "desktop/widgets/icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/widgets/tones.h"

namespace tarnwell::desktop {
namespace {

constexpr int kSides[] = {16, 24, 32, 48};  // pixels

// What the drawings have, and what stands for it where their own colour can't be seen.
struct Stroke {
  const char* drawn;
  Tone tone;
};
constexpr Stroke kStrokes[] = {
    {"#2B5C9E", Tone::kAccent},
    {"#A33A2C", Tone::kAlarm},
    {"#C8102E", Tone::kAlarm},
};

}  // namespace

QIcon IconOf(const QString& name) {
  const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
  if (CurrentTones() == ToneSet::kLight) return QIcon(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray drawing = file.readAll();
  for (const auto& [drawn, tone] : kStrokes) {
    drawing.replace(drawn, ColorOf(tone).name().toLatin1());
  }
  QSvgRenderer renderer(drawing);
  QIcon icon;
  for (const int side : kSides) {
    QPixmap pixels(side, side);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    renderer.render(&painter);
    painter.end();
    icon.addPixmap(pixels);
  }
  return icon;
}

}  // namespace tarnwell::desktop
