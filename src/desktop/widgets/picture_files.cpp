#include "desktop/widgets/picture_files.h"

#include <QBuffer>
#include <QImageReader>

namespace tarnwell::desktop {
namespace {

// A reader of the file as what it is and as nothing else.
class PictureReader {
 public:
  explicit PictureReader(const QByteArray& file) {
    const QByteArray type = PictureTypeOf(file);
    if (type.isEmpty()) return;
    buffer_.setData(file);
    buffer_.open(QIODevice::ReadOnly);
    reader_.setDecideFormatFromContent(false);
    reader_.setAutoDetectImageFormat(false);
    reader_.setFormat(type);
    reader_.setDevice(&buffer_);
    const QSize size = reader_.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPicturePixels) return;
    size_ = size;
  }

  QSize size() const { return size_; }
  QImageReader& reader() { return reader_; }

 private:
  QBuffer buffer_;
  QImageReader reader_;
  QSize size_;
};

}  // namespace

QByteArray PictureTypeOf(const QByteArray& file) {
  if (file.startsWith("\x89PNG\r\n\x1A\n")) return "png";
  if (file.startsWith("\xFF\xD8\xFF")) return "jpeg";
  if (file.startsWith("BM")) return "bmp";
  return {};
}

QSize PixelsOf(const QByteArray& file) { return PictureReader(file).size(); }

QImage Decoded(const QByteArray& file, QSize most) {
  PictureReader picture(file);
  if (!picture.size().isValid()) return {};
  const QSize size = picture.size().boundedTo(most.expandedTo(QSize(1, 1)));
  if (size != picture.size()) picture.reader().setScaledSize(size);
  return picture.reader().read();
}

QImage Decoded(const QByteArray& file) { return Decoded(file, PixelsOf(file)); }

}  // namespace tarnwell::desktop
