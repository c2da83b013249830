#include "desktop/widgets/chart_labels.h"

#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <algorithm>
#include <cmath>
#include <functional>

namespace tarnwell::desktop {
namespace {

constexpr double kLabelGap = 4;  // between an edge and its labels
constexpr double kBetween = 4;   // between two labels beside each other
constexpr double kSlack = 0.01;  // what rounding may add

std::vector<ChartLabels::Label> ByWeight(std::vector<ChartLabels::Label> labels) {
  std::ranges::stable_sort(labels, std::greater<>(), &ChartLabels::Label::weight);
  return labels;
}

}  // namespace

double ChartLabels::line_height() const { return QFontMetricsF(font_).height(); }

QFont ChartLabels::FontOf(const Label& label) const {
  QFont font = font_;
  font.setBold(label.strong);
  return font;
}

QSizeF ChartLabels::SizeOf(const Label& label, double most) const {
  const QFontMetricsF metrics(FontOf(label));
  return {std::min(metrics.horizontalAdvance(label.text), most), metrics.height()};
}

double ChartLabels::WidthOf(const std::vector<Label>& labels, double most) const {
  double widest = 0;
  for (const Label& label : labels) widest = std::max(widest, SizeOf(label, most).width());
  return widest + kLabelGap;
}

bool ChartLabels::AllFitLevel(const std::vector<Label>& labels) const {
  double end = bounds_.left();
  for (const Label& label : labels) {
    const double half = SizeOf(label, bounds_.width()).width() / 2;
    if (label.at - half < end || label.at + half > bounds_.right()) return false;
    end = label.at + half + kBetween;
  }
  return true;
}

void ChartLabels::Left(const std::vector<Label>& labels, double edge, double width) {
  Beside(labels, edge, width, true);
}

void ChartLabels::Right(const std::vector<Label>& labels, double edge, double width) {
  Beside(labels, edge, width, false);
}

void ChartLabels::Below(const std::vector<Label>& labels, double edge, double height) {
  AtEdge(labels, edge, height, true);
}

void ChartLabels::Above(const std::vector<Label>& labels, double edge, double height) {
  AtEdge(labels, edge, height, false);
}

void ChartLabels::Beside(const std::vector<Label>& labels, double edge, double width, bool left) {
  for (const Label& label : ByWeight(labels)) {
    QRectF place({}, SizeOf(label, width - kLabelGap));
    place.moveTop(label.at - place.height() / 2);
    left ? place.moveRight(edge - kLabelGap) : place.moveLeft(edge + kLabelGap);
    Write(label, place, false);
  }
}

void ChartLabels::AtEdge(const std::vector<Label>& labels, double edge, double height, bool below) {
  const bool upright = !AllFitLevel(labels);
  for (const Label& label : ByWeight(labels)) {
    const QSizeF size = SizeOf(label, upright ? height - kLabelGap : bounds_.width());
    QRectF place({}, upright ? size.transposed() : size);
    place.moveLeft(label.at - place.width() / 2);
    below ? place.moveTop(edge + kLabelGap) : place.moveBottom(edge - kLabelGap);
    Write(label, place, upright);
  }
}

bool ChartLabels::Around(const Label& label, const QPointF& point, const QPointF& middle,
                         double width) {
  QRectF place({}, SizeOf(label, width - kLabelGap));
  place.moveTop(point.y() - place.height() / 2);
  point.x() < middle.x() ? place.moveRight(point.x() - kLabelGap)
                         : place.moveLeft(point.x() + kLabelGap);
  return Write(label, place, false);
}

bool ChartLabels::Write(const Label& label, const QRectF& place, bool upright) {
  const bool inside =
      bounds_.adjusted(-kSlack, -kSlack, kSlack, kSlack).contains(place) && place.isValid();
  const auto meets = [&](const QRectF& other) { return other.intersects(place); };
  if (!inside || std::ranges::any_of(taken_, meets)) return false;
  taken_.push_back(place);
  const QFont font = FontOf(label);
  const double room = upright ? place.height() : place.width();
  const QFontMetricsF metrics(font);
  const bool fits = metrics.horizontalAdvance(label.text) <= room + kSlack;
  const QString shown =
      fits ? label.text : metrics.elidedText(label.text, Qt::ElideRight, std::floor(room));
  auto* text = scene_.addSimpleText(shown, font);
  text->setBrush(QColor(0x1C, 0x25, 0x30));
  if (upright) {
    text->setRotation(-90);
    text->setPos(place.bottomLeft());
  } else {
    text->setPos(place.topLeft());
  }
  return true;
}

}  // namespace tarnwell::desktop
