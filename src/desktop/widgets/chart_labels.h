// The words of a chart. None lies over another one: where there is no room, those that matter less
// are left out.

#pragma once

#include <QColor>
#include <QFont>
#include <QGraphicsScene>
#include <QRectF>
#include <QString>
#include <vector>

namespace tarnwell::desktop {

class ChartLabels {
 public:
  struct Label {
    QString text;
    double at = 0;      // its middle, along the edge
    double weight = 0;  // what matters more comes first
    bool strong = false;
  };

  // Into that part of the scene alone.
  ChartLabels(QGraphicsScene& scene, const QRectF& bounds, const QFont& font)
      : scene_(scene), bounds_(bounds), font_(font) {}

  double line_height() const;
  // Of the widest, `most` where it is wider than that.
  double WidthOf(const std::vector<Label>& labels, double most) const;

  // Texts that end left of `edge`, or begin right of it, under each other.
  void Left(const std::vector<Label>& labels, double edge, double width);
  void Right(const std::vector<Label>& labels, double edge, double width);
  // Texts below or above `edge`, beside each other: level where all fit so, else upright, no longer
  // than `height`.
  void Below(const std::vector<Label>& labels, double edge, double height);
  void Above(const std::vector<Label>& labels, double edge, double height);
  // One text whose nearest edge or corner is at `point`, as seen from the middle of a pie; false
  // where there is no room.
  bool Around(const Label& label, const QPointF& point, const QPointF& middle, double width);

 private:
  bool AllFitLevel(const std::vector<Label>& labels) const;
  void Beside(const std::vector<Label>& labels, double edge, double width, bool left);
  void AtEdge(const std::vector<Label>& labels, double edge, double height, bool below);
  // False, and nothing is written, where it would lie over another one or outside.
  bool Write(const Label& label, const QRectF& place, bool upright);
  QFont FontOf(const Label& label) const;
  QSizeF SizeOf(const Label& label, double most) const;

  QGraphicsScene& scene_;
  QRectF bounds_;
  QFont font_;
  std::vector<QRectF> taken_;
};

}  // namespace tarnwell::desktop
