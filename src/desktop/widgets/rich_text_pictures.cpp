#include "desktop/widgets/rich_text_pictures.h"

#include <QCryptographicHash>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "desktop/widgets/picture_files.h"
#include "forms/services.h"

namespace tarnwell::desktop {
namespace {

QString NameOf(const QByteArray& file) {
  return QStringLiteral("picture:") +
         QString::fromLatin1(QCryptographicHash::hash(file, QCryptographicHash::Sha1).toHex());
}

}  // namespace

QTextImageFormat PictureFormat(const richtext::Picture& picture, const QByteArray& file,
                               const RichTextFormats& formats, double widest) {
  double width = formats.Pixels(picture.width);
  double height = formats.Pixels(picture.height);
  const QSize pixels = PixelsOf(file);
  if (!pixels.isValid()) {
    width = height = formats.Pixels(richtext::kBrokenPicture);
  } else if (width <= 0 || height <= 0) {
    width = pixels.width() * formats.Pixels(forms::kTwipsPerPixel);
    height = pixels.height() * formats.Pixels(forms::kTwipsPerPixel);
  }
  if (pixels.isValid()) {
    width *= std::max(1, picture.scale_x) / 100.0;
    height *= std::max(1, picture.scale_y) / 100.0;
  }
  if (widest > 0 && width > widest) height *= widest / std::exchange(width, widest);
  QTextImageFormat format;
  format.setName(QStringLiteral("%1/%2x%3").arg(NameOf(file)).arg(qCeil(width)).arg(qCeil(height)));
  format.setWidth(width);
  format.setHeight(height);
  return format;
}

}  // namespace tarnwell::desktop
