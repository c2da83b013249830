#pragma once

#include <QBrush>
#include <QPen>

#include "forms/chart_picture.h"

namespace tarnwell::desktop {

inline const QColor kChartInk{0x1C, 0x25, 0x30};
inline const QColor kChartGrid{0xD5, 0xDA, 0xDF};

// What a point is filled and edged with. Where each has a colour of its own, as in a pie,
// neighbours are far from each other in brightness.
QBrush ChartBrush(const forms::ChartPicture& picture, int point);
QPen ChartPen(const forms::ChartPicture& picture, int point);

}  // namespace tarnwell::desktop
