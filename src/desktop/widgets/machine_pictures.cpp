#include "desktop/widgets/machine_pictures.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

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
  if (*size > kMostPictureBytes) return storage::Fault::kTooLarge;
  content.resize(static_cast<qsizetype>(*size));
  const auto count = file->ReadAt(0, {content.data(), static_cast<std::size_t>(content.size())});
  if (count < 0) return files.fault();
  content.truncate(count);
  return storage::Fault::kNone;
}

// Decodes it as large as fits into `most`; nothing where that is empty.
MachinePicture Read(const std::string& path, QSize most) {
  MachinePicture picture;
  QBuffer file;
  picture.fault = ReadFile(path, file.buffer());
  const QByteArray type = TypeOf(file.buffer());
  if (type.isEmpty()) return picture;
  file.open(QIODevice::ReadOnly);
  QImageReader reader;
  reader.setAutoDetectImageFormat(false);
  reader.setDecideFormatFromContent(false);
  reader.setFormat(type);
  reader.setDevice(&file);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty()) return picture;
  if (std::int64_t{size.width()} * size.height() > kMostMachinePixels) {
    picture.fault = storage::Fault::kTooLarge;
    return picture;
  }
  // What is read is turned afterwards.
  const bool is_on_its_side = reader.transformation() & QImageIOHandler::TransformationRotate90;
  picture.type = type;
  picture.whole = is_on_its_side ? size.transposed() : size;
  if (most.isEmpty()) return picture;
  const QSize fitting = picture.whole.scaled(most.boundedTo(picture.whole), Qt::KeepAspectRatio)
                            .expandedTo(QSize(1, 1));
  if (fitting != picture.whole) {
    reader.setScaledSize(is_on_its_side ? fitting.transposed() : fitting);
  }
  picture.image = reader.read();
  return picture;
}

}  // namespace

MachinePicture ReadMachinePicture(const std::string& path, QSize most) {
  return Read(path, most.expandedTo(QSize(1, 1)));
}

MachinePicture LookAtMachinePicture(const std::string& path) { return Read(path, {}); }

}  // namespace tarnwell::desktop
