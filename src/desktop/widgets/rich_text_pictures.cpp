#include "desktop/widgets/rich_text_pictures.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImageReader>
#include <algorithm>
#include <utility>

namespace tarnwell::desktop {
namespace {

constexpr int kTwipsPerPixel = 15;

// Only the file's head is read.
QSize PixelsOf(const QByteArray& file) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  const QSize size = QImageReader(&buffer).size();
  return size.isValid() ? size : QSize(1, 1);
}

}  // namespace

QString PictureName(const QByteArray& file) {
  return QStringLiteral("picture:") +
         QString::fromLatin1(QCryptographicHash::hash(file, QCryptographicHash::Sha1).toHex());
}

QTextImageFormat PictureFormat(const richtext::Picture& picture, const QString& name,
                               const QByteArray& file, const RichTextFormats& formats,
                               double widest) {
  double width = formats.Pixels(picture.width);
  double height = formats.Pixels(picture.height);
  if (width <= 0 || height <= 0) {
    const QSize pixels = PixelsOf(file);
    width = pixels.width() * formats.Pixels(kTwipsPerPixel);
    height = pixels.height() * formats.Pixels(kTwipsPerPixel);
  }
  width *= std::max(1, picture.scale_x) / 100.0;
  height *= std::max(1, picture.scale_y) / 100.0;
  if (widest > 0 && width > widest) height *= widest / std::exchange(width, widest);
  QTextImageFormat format;
  format.setName(name);
  format.setWidth(width);
  format.setHeight(height);
  return format;
}

}  // namespace tarnwell::desktop
