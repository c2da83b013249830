#include "desktop/widgets/picture_cache.h"

#include <QMetaObject>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/widgets/broken_picture.h"
#include "desktop/widgets/picture_files.h"

namespace tarnwell::desktop {
namespace {

constexpr double kMostPixelsOfOne = 4e6;  // twice a usual screen
constexpr int kPixelsAtOnce = 250'000;    // that hardly take time
constexpr int kBytesPerPixel = 4;
const QColor kWaitingColor{0xE4, 0xE7, 0xEA};

double Area(QSize size) { return static_cast<double>(size.width()) * size.height(); }

QSize Bounded(QSize size) {
  const double area = Area(size);
  if (area > kMostPixelsOfOne) size *= std::sqrt(kMostPixelsOfOne / area);
  return size;
}

QPixmap Broken(QSize size) {
  QPixmap picture(size.expandedTo(QSize(1, 1)));
  QPainter painter(&picture);
  PaintBrokenPicture(painter, picture.rect());
  return picture;
}

}  // namespace

PictureCache::PictureCache(std::function<void()> on_ready)
    : on_ready_(std::move(on_ready)), waiting_(1, 1) {
  waiting_.fill(kWaitingColor);
  pool_.setMaxThreadCount(1);
}

QPixmap PictureCache::At(const QString& name, const QByteArray& file, QSize size) {
  if (const QPixmap* const known = pictures_.object(name)) return *known;
  if (is_busy_ || tried_.contains(name)) return waiting_;
  tried_.insert(name);
  size = Bounded(size);
  if (Area(PixelsOf(file)) <= kPixelsAtOnce) {
    Keep(name, Decoded(file, size), size);
    return *pictures_.object(name);
  }
  is_busy_ = true;
  pool_.start([this, name, file, size] {
    QImage image = Decoded(file, size);
    QMetaObject::invokeMethod(
        &thread_,
        [this, name, size, image = std::move(image)] {
          is_busy_ = false;
          Keep(name, image, size);
          on_ready_();
        },
        Qt::QueuedConnection);
  });
  return waiting_;
}

void PictureCache::Keep(const QString& name, const QImage& image, QSize size) {
  auto* const picture = new QPixmap(image.isNull() ? Broken(size) : QPixmap::fromImage(image));
  const int kilobytes = static_cast<int>(Area(picture->size()) * kBytesPerPixel / 1024);
  pictures_.insert(name, picture, std::max(1, kilobytes));
}

}  // namespace tarnwell::desktop
