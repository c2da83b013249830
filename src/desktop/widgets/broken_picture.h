#pragma once

#include <QPainter>
#include <QRectF>

namespace tarnwell::desktop {

// What stands in the place of a picture that can't be read: a grey frame, crossed out.
void PaintBrokenPicture(QPainter& painter, const QRectF& place);

}  // namespace tarnwell::desktop
