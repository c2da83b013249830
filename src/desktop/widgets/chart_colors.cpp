#include "desktop/widgets/chart_colors.h"

#include <cstddef>
#include <iterator>

namespace tarnwell::desktop {
namespace {

// Told apart by all kinds of eyes; dark and light by turns.
const QColor kColors[] = {{0x00, 0x72, 0xB2}, {0xE6, 0x9F, 0x00}, {0x8F, 0x2D, 0x56},
                          {0x56, 0xB4, 0xE9}, {0x00, 0x7A, 0x5A}, {0xF0, 0xE4, 0x42},
                          {0xB8, 0x4A, 0x00}, {0xCC, 0x9F, 0xC4}};
const QColor kBar = kColors[0];
const QColor kBarInHand = kColors[1];
constexpr double kThinEdge = 0.7;
constexpr double kThickEdge = 2;
constexpr std::size_t kManyPoints = 100;  // edges would take all the room

}  // namespace

QBrush ChartBrush(const forms::ChartPicture& picture, int point) {
  const auto index = static_cast<std::size_t>(point);
  const bool in_hand = point == picture.highlight;
  if (picture.points[index].apart) return kChartInk;
  if (picture.kind == forms::ChartKind::kBar) return in_hand ? kBarInHand : kBar;
  return kColors[index % std::size(kColors)];
}

QPen ChartPen(const forms::ChartPicture& picture, int point) {
  if (point == picture.highlight) return {Qt::black, kThickEdge};
  if (picture.points.size() > kManyPoints) return Qt::NoPen;
  return {Qt::white, kThinEdge};
}

}  // namespace tarnwell::desktop
