#include "desktop/widgets/chart_drawing.h"

#include <QApplication>
#include <QChart>
#include <QLegend>
#include <QPieSeries>
#include <QPieSlice>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/widgets/chart_colors.h"
#include "desktop/widgets/chart_labels.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOnPaper = 12;     // units of a scene for paper
constexpr double kLeastSide = 40;       // of a scene that is drawn at all
constexpr double kSideNameShare = 0.3;  // of the width, at most, on either side of a pie
constexpr double kPieShare = 0.8;       // of its place; the rest is for the slice that stands out

}  // namespace

ChartDrawing::ChartDrawing(const forms::ChartPicture& picture, QSizeF size, const QFont& font)
    : scene_(QRectF({}, size)), size_(size), chart_(new QChart) {
  scene_.addItem(chart_);
  chart_->setPos(0, 0);
  chart_->resize(size);
  chart_->setMargins({});
  chart_->setBackgroundVisible(false);
  chart_->legend()->hide();
  if (picture.points.empty() || size.width() < kLeastSide || size.height() < kLeastSide) return;
  ChartLabels labels(scene_, QRectF({}, size), font);
  switch (picture.kind) {
    case forms::ChartKind::kBar:
      DrawBars(picture, labels);
      break;
    case forms::ChartKind::kStacked:
      DrawStack(picture, labels);
      break;
    case forms::ChartKind::kPie:
      DrawPie(picture, labels);
      break;
  }
}

void ChartDrawing::DrawPie(const forms::ChartPicture& picture, ChartLabels& labels) {
  const std::vector<double> shares = forms::ChartShares(picture);
  auto* series = new QPieSeries;
  std::vector<ChartLabels::Label> names;
  QList<QPieSlice*> slices;
  for (int i = 0; i < static_cast<int>(shares.size()); ++i) {
    const auto index = static_cast<std::size_t>(i);
    const forms::ChartPoint& point = picture.points[index];
    const bool in_hand = i == picture.highlight;
    auto* slice = new QPieSlice(QString(), shares[index]);
    slice->setBrush(ChartBrush(picture, i));
    slice->setPen(ChartPen(picture, i));
    slice->setExploded(in_hand);
    QObject::connect(slice, &QPieSlice::clicked, [this, i] { Tell(i); });
    slices.append(slice);
    names.push_back({FromCore(point.label + " " + forms::ChartPercent(point, shares[index])),
                     static_cast<double>(i), shares[index] + (in_hand ? 1 : 0), in_hand});
  }
  series->append(slices);
  series->setPieSize(kPieShare);
  const double width = labels.WidthOf(names, size_.width() * kSideNameShare);
  chart_->addSeries(series);
  const QRectF place(width, labels.line_height(), size_.width() - 2 * width,
                     size_.height() - 2 * labels.line_height());
  chart_->setPlotArea(place);

  const double radius = std::min(place.width(), place.height()) / 2;
  std::vector<double> middles;
  double turned = 0;
  for (const double share : shares) {
    middles.push_back((turned + share / 2) * 2 * std::numbers::pi);
    turned += share;
  }
  std::ranges::stable_sort(names, std::greater<>(), &ChartLabels::Label::weight);
  for (const ChartLabels::Label& name : names) {
    const double angle = middles[static_cast<std::size_t>(name.at)];
    const QPointF way(std::sin(angle), -std::cos(angle));
    const QPointF end = place.center() + way * radius;  // behind the slice that stands out
    if (name.weight <= 0 || !labels.Around(name, end, place.center(), width)) continue;
    scene_.addLine(QLineF(place.center() + way * radius * kPieShare, end), QPen(kChartInk, 1));
  }
}

void ChartDrawing::Paint(QPainter& painter, const QRectF& place, const forms::ChartPicture& picture,
                         double letters) {
  QFont font = QApplication::font();
  font.setPixelSize(kLettersOnPaper);
  font.setHintingPreference(QFont::PreferNoHinting);
  const double scale = letters / kLettersOnPaper;
  ChartDrawing drawing(picture, place.size() / scale, font);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.scene().render(&painter, place, drawing.scene().sceneRect());
  painter.restore();
}

}  // namespace tarnwell::desktop
