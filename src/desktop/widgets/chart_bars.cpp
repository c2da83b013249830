#include <QBarSet>
#include <QChart>
#include <QHorizontalStackedBarSeries>
#include <QStackedBarSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/chart_colors.h"
#include "desktop/widgets/chart_drawing.h"
#include "desktop/widgets/chart_labels.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr double kNameShare = 0.35;   // of the chart's side, at most
constexpr double kStackShare = 0.25;  // of the chart's width
constexpr double kGap = 8;
constexpr double kWideBar = 0.7;  // of a bar's place
constexpr double kNarrowPlace = 4;

// The point in hand, the one apart, then every so manieth, so that names stand evenly.
std::vector<ChartLabels::Label> Names(const forms::ChartPicture& picture, int every) {
  std::vector<ChartLabels::Label> names;
  for (int i = 0; i < static_cast<int>(picture.points.size()); ++i) {
    const forms::ChartPoint& point = picture.points[static_cast<std::size_t>(i)];
    const bool in_hand = i == picture.highlight;
    if (!in_hand && !point.apart && i % every != 0) continue;
    names.push_back({FromCore(point.label), static_cast<double>(i),
                     in_hand ? 3.0 : (point.apart ? 2.0 : 1.0), in_hand});
  }
  return names;
}

int EveryManieth(double height, double room) {
  return std::max(1, static_cast<int>(std::ceil(height / std::max(room, 1e-3))));
}

}  // namespace

double ChartDrawing::Axes::Along(double value) const {
  const double share = (value - scale.least) / (scale.most - scale.least);
  return horizontal ? plot.left() + share * plot.width() : plot.bottom() - share * plot.height();
}

double ChartDrawing::Axes::Middle(int point) const {
  const double share = (point + 0.5) / points;
  return horizontal ? plot.top() + share * plot.height() : plot.left() + share * plot.width();
}

void ChartDrawing::WriteAmounts(Axes& axes, ChartLabels& labels) {
  std::vector<ChartLabels::Label> amounts;
  const forms::ChartScale& scale = axes.scale;
  const int steps = static_cast<int>(std::lround((scale.most - scale.least) / scale.step));
  for (int i = 0; i <= steps; ++i) {
    const double value = scale.least + i * scale.step;
    amounts.push_back({FromCore(forms::ChartAmount(value)), value, value == 0 ? 2.0 : 1.0});
  }
  const double widest = labels.WidthOf(amounts, size_.width() * kNameShare);
  const double line = labels.line_height();
  if (axes.horizontal) {
    axes.plot.adjust(std::max(0.0, widest / 2 - axes.plot.left()), 0, -widest / 2, -line - kGap);
  } else {
    axes.plot.adjust(widest, line / 2, 0, -line / 2);
  }
  const double room = (axes.horizontal ? axes.plot.width() : axes.plot.height()) / steps;
  const int every = EveryManieth(axes.horizontal ? widest + kGap : line, room);
  const int zero = static_cast<int>(std::lround(-scale.least / scale.step));
  std::vector<ChartLabels::Label> shown;
  for (int i = 0; i <= steps; ++i) {
    if ((i - zero) % every != 0) continue;
    shown.push_back(amounts[static_cast<std::size_t>(i)]);
    shown.back().at = axes.Along(shown.back().at);
  }
  if (axes.horizontal) {
    labels.Below(shown, axes.plot.bottom(), line + kGap);
  } else {
    labels.Left(shown, axes.plot.left(), widest);
  }
}

QAbstractBarSeries* ChartDrawing::AddBars(const Axes& axes, const QList<QBarSet*>& sets) {
  QAbstractBarSeries* series = nullptr;
  if (axes.horizontal) {
    series = new QHorizontalStackedBarSeries;
  } else {
    series = new QStackedBarSeries;
  }
  const double side = axes.horizontal ? axes.plot.height() : axes.plot.width();
  series->setBarWidth(side / axes.points < kNarrowPlace ? 1 : kWideBar);
  series->append(sets);
  chart_->addSeries(series);
  auto* along = new QValueAxis;
  along->setVisible(false);
  along->setReverse(axes.horizontal);  // the first one on top
  auto* amounts = new QValueAxis;
  amounts->setLabelsVisible(false);
  amounts->setLineVisible(false);
  amounts->setGridLinePen(QPen(kChartGrid, 1));
  chart_->addAxis(along, axes.horizontal ? Qt::AlignLeft : Qt::AlignBottom);
  chart_->addAxis(amounts, axes.horizontal ? Qt::AlignBottom : Qt::AlignLeft);
  series->attachAxis(along);
  series->attachAxis(amounts);
  along->setRange(-0.5, axes.points - 0.5);
  amounts->setRange(axes.scale.least, axes.scale.most);
  amounts->setTickCount(
      static_cast<int>(std::lround((axes.scale.most - axes.scale.least) / axes.scale.step)) + 1);
  chart_->setPlotArea(axes.plot);
  const double zero = axes.Along(0);
  const QLineF line = axes.horizontal ? QLineF(zero, axes.plot.top(), zero, axes.plot.bottom())
                                      : QLineF(axes.plot.left(), zero, axes.plot.right(), zero);
  scene_.addLine(line, QPen(kChartInk, 1));
  return series;
}

double ChartDrawing::RoomOfNames(const Axes& axes, const std::vector<ChartLabels::Label>& names,
                                 const ChartLabels& labels) const {
  const double widest = labels.WidthOf(names, size_.width());
  if (axes.horizontal) return std::min(widest, size_.width() * kNameShare);
  const bool fits_level = widest <= size_.width() * (1 - kNameShare) / axes.points;
  return fits_level ? labels.line_height() + kGap : std::min(widest, size_.height() * kNameShare);
}

// One set for each look, so that only one bar of each place isn't empty.
void ChartDrawing::DrawBars(const forms::ChartPicture& picture, ChartLabels& labels) {
  Axes axes{QRectF({}, size_), forms::ScaleOf(picture), picture.horizontal,
            static_cast<int>(picture.points.size())};
  const double names_room = RoomOfNames(axes, Names(picture, 1), labels);
  axes.horizontal ? axes.plot.adjust(names_room, 0, 0, 0) : axes.plot.adjust(0, 0, 0, -names_room);
  WriteAmounts(axes, labels);
  const double side = axes.horizontal ? axes.plot.height() : axes.plot.width();
  std::vector<ChartLabels::Label> names =
      Names(picture, EveryManieth(labels.line_height(), side / axes.points));
  const double first = axes.horizontal ? axes.plot.top() : axes.plot.left();
  const double half = std::min(labels.line_height(), side) / 2;
  for (ChartLabels::Label& name : names) {
    const double middle = axes.Middle(static_cast<int>(name.at));
    name.at = std::clamp(middle, first + half, first + side - half);
  }
  if (axes.horizontal) {
    labels.Left(names, axes.plot.left(), names_room);
  } else {
    labels.Below(names, axes.plot.bottom(), names_room);
  }

  QList<QBarSet*> sets;
  for (int i = 0; i < axes.points; ++i) {
    const QBrush brush = ChartBrush(picture, i);
    auto set = std::ranges::find_if(sets, [&](QBarSet* one) { return one->brush() == brush; });
    if (set == sets.end()) {
      sets.append(new QBarSet(QString()));
      sets.back()->setBrush(brush);
      sets.back()->setPen(ChartPen(picture, i));
      sets.back()->append(QList<qreal>(axes.points, 0));
      set = sets.end() - 1;
    }
    (*set)->replace(i, picture.points[static_cast<std::size_t>(i)].value);
  }
  QAbstractBarSeries* series = AddBars(axes, sets);
  QObject::connect(series, &QAbstractBarSeries::clicked, [this](int point) { Tell(point); });
}

void ChartDrawing::DrawStack(const forms::ChartPicture& picture, ChartLabels& labels) {
  Axes axes{QRectF({}, size_), forms::ScaleOf(picture), picture.horizontal};
  std::vector<ChartLabels::Label> names = Names(picture, 1);
  if (axes.horizontal) {
    const double room = labels.WidthOf(names, size_.height() * kNameShare);
    axes.plot.adjust(0, room, 0, 0);
  } else {
    axes.plot.setRight(size_.width() * (1 - kNameShare));
  }
  WriteAmounts(axes, labels);
  if (!axes.horizontal) {
    axes.plot.setWidth(std::min(axes.plot.width(), size_.width() * kStackShare));
  }

  QList<QBarSet*> sets;
  double above = 0;
  double below = 0;
  for (int i = 0; i < static_cast<int>(names.size()); ++i) {
    const double value = picture.points[static_cast<std::size_t>(i)].value;
    auto* set = new QBarSet(QString());
    set->setBrush(ChartBrush(picture, i));
    set->setPen(ChartPen(picture, i));
    set->append(value);
    sets.append(set);
    double& end = value < 0 ? below : above;
    ChartLabels::Label& name = names[static_cast<std::size_t>(i)];
    name.at = axes.Along(end + value / 2);
    name.weight = name.strong ? forms::ScaleOf(picture).most * 2 : std::abs(value);
    end += value;
  }
  if (axes.horizontal) {
    labels.Above(names, axes.plot.top(), axes.plot.top());
  } else {
    labels.Right(names, axes.plot.right(), size_.width() - axes.plot.right());
  }
  QAbstractBarSeries* series = AddBars(axes, sets);
  QObject::connect(series, &QAbstractBarSeries::clicked,
                   [this, sets](int, QBarSet* set) { Tell(static_cast<int>(sets.indexOf(set))); });
}

}  // namespace tarnwell::desktop
