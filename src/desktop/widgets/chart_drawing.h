// The drawing of a chart: bars and slices by Qt Charts, the words around them by us.

#pragma once

#include <QFont>
#include <QGraphicsScene>
#include <QPainter>
#include <QRectF>
#include <functional>
#include <vector>

#include "desktop/widgets/chart_labels.h"
#include "forms/chart_picture.h"

class QAbstractBarSeries;
class QBarSet;
class QChart;

namespace tarnwell::desktop {

// Colours differ in brightness too, so that neighbours can be told apart on grey paper and by eyes
// that don't see all of them.
class ChartDrawing {
 public:
  // In a scene of that size, from its origin; `font` has a size in the scene's units.
  ChartDrawing(const forms::ChartPicture& picture, QSizeF size, const QFont& font);

  QGraphicsScene& scene() { return scene_; }
  // A click on a point, counted from 0. The drawing has to outlive the call.
  std::function<void(int point)> on_point;

  // As lines and letters, so as sharp as the painter's device, with letters `letters` high in the
  // painter's units.
  static void Paint(QPainter& painter, const QRectF& place, const forms::ChartPicture& picture,
                    double letters);

 private:
  // Where bars stand: the amounts along one edge, the points along the other.
  struct Axes {
    QRectF plot;
    forms::ChartScale scale;
    bool horizontal = false;
    int points = 1;

    double Along(double value) const;  // the amount's place
    double Middle(int point) const;    // the point's place
  };

  void DrawBars(const forms::ChartPicture& picture, ChartLabels& labels);
  // Beside or below the bars.
  double RoomOfNames(const Axes& axes, const std::vector<ChartLabels::Label>& names,
                     const ChartLabels& labels) const;
  void DrawStack(const forms::ChartPicture& picture, ChartLabels& labels);
  void DrawPie(const forms::ChartPicture& picture, ChartLabels& labels);
  // Takes the edge of the amounts off the plot and writes the amounts.
  void WriteAmounts(Axes& axes, ChartLabels& labels);
  QAbstractBarSeries* AddBars(const Axes& axes, const QList<QBarSet*>& sets);
  void Tell(int point) {
    if (on_point) on_point(point);
  }

  QGraphicsScene scene_;
  QSizeF size_;
  QChart* chart_;  // the scene's
};

}  // namespace tarnwell::desktop
