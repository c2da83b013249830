#include "desktop/widgets/machine_pictures.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <utility>

#include "desktop/widgets/patient_reading.h"
#include "desktop/widgets/text.h"

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

// A link is followed: a person chose it. What isn't a file, such as a pipe, isn't opened.
FileRead ReadFile(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) return {{}, storage::Fault::kMissing};
  if (!info.isFile()) return {{}, storage::Fault::kNotPlain};
  if (info.size() > static_cast<qint64>(kMostPictureBytes)) return {{}, storage::Fault::kTooLarge};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    const bool is_denied = file.error() == QFileDevice::PermissionsError || !info.isReadable();
    return {{}, is_denied ? storage::Fault::kNotPermitted : storage::Fault::kInUse};
  }
  FileRead read{file.read(static_cast<qint64>(kMostPictureBytes)), storage::Fault::kNone};
  if (file.error() != QFileDevice::NoError) read.fault = storage::Fault::kBroken;
  return read;
}

// Decodes it as large as fits into `most`; nothing where that is empty.
MachinePicture Read(const std::string& path, QSize most) {
  MachinePicture picture;
  const QString place = FromCore(path);
  const std::string folder = place.section(QLatin1Char('/'), 0, -2).toStdString();
  FileRead read = ReadPatiently(folder, [place] { return ReadFile(place); });
  picture.fault = read.fault;
  QBuffer file;
  file.setData(std::move(read.content));
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
