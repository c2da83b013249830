#include "desktop/services/qt_pictures.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <algorithm>

#include "desktop/widgets/text.h"
#include "storage/file_system.h"

namespace tarnwell::desktop {
namespace {

// Among them no drawing (SVG), which opens the files that it names.
QByteArray TypeOf(const QByteArray& file) {
  const struct {
    const char* type;
    QByteArray start;
  } known[] = {{"png", "\x89PNG\r\n\x1A\n"},
               {"jpeg", "\xFF\xD8\xFF"},
               {"bmp", "BM"},
               {"gif", "GIF8"},
               {"ico", QByteArray("\0\0\1\0", 4)},
               {"tiff", QByteArray("II*\0", 4)},
               {"tiff", QByteArray("MM\0*", 4)}};
  for (const auto& [type, start] : known) {
    if (file.startsWith(start)) return type;
  }
  return file.startsWith("RIFF") && file.mid(8, 4) == "WEBP" ? "webp" : "";
}

// A link is followed: a person chose it.
storage::Fault ReadFile(const std::string& path, QByteArray& content) {
  const QString canonical = QFileInfo(FromCore(path)).canonicalFilePath();
  if (canonical.isEmpty()) return storage::Fault::kMissing;
  storage::FileSystem& files = storage::RealFileSystem();
  const auto file = files.Open(canonical.toStdString(), storage::OpenMode::kRead);
  const auto size = file ? file->Size() : std::nullopt;
  if (!size) return files.fault();
  if (*size > QtPictures::kMostBytes) return storage::Fault::kTooLarge;
  content.resize(static_cast<qsizetype>(*size));
  const auto count = file->ReadAt(0, {content.data(), static_cast<std::size_t>(content.size())});
  if (count < 0) return files.fault();
  content.truncate(count);
  return storage::Fault::kNone;
}

}  // namespace

forms::LoadedPicture QtPictures::Load(const std::string& path, int most_width, int most_height) {
  forms::LoadedPicture loaded;
  QBuffer file;
  loaded.fault = ReadFile(path, file.buffer());
  const QByteArray type = TypeOf(file.buffer());
  if (type.isEmpty()) return loaded;
  file.open(QIODevice::ReadOnly);
  QImageReader reader;
  reader.setAutoDetectImageFormat(false);
  reader.setDecideFormatFromContent(false);
  reader.setFormat(type);
  reader.setDevice(&file);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty()) return loaded;
  if (std::int64_t{size.width()} * size.height() > kMostPixels) {
    loaded.fault = storage::Fault::kTooLarge;
    return loaded;
  }
  // What is read is turned afterwards.
  const bool is_on_its_side = reader.transformation() & QImageIOHandler::TransformationRotate90;
  const QSize seen = is_on_its_side ? size.transposed() : size;
  const QSize most = QSize(std::max(most_width, 1), std::max(most_height, 1)).boundedTo(seen);
  const QSize fitting = seen.scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
  if (fitting != seen) reader.setScaledSize(is_on_its_side ? fitting.transposed() : fitting);
  const QImage image = reader.read();
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  if (image.isNull() || !image.save(&png, "PNG")) return loaded;
  loaded.png = std::make_shared<const std::string>(png.buffer().toStdString());
  loaded.width = seen.width();
  loaded.height = seen.height();
  return loaded;
}

}  // namespace tarnwell::desktop
