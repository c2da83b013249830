#include "desktop/services/qt_pictures.h"

#include <QBuffer>

#include "desktop/widgets/machine_pictures.h"

namespace tarnwell::desktop {

forms::LoadedPicture QtPictures::Load(const std::string& path, int most_width, int most_height) {
  const MachinePicture read = ReadMachinePicture(path, {most_width, most_height});
  forms::LoadedPicture loaded;
  loaded.fault = read.fault;
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  if (read.image.isNull() || !read.image.save(&png, "PNG")) return loaded;
  loaded.png = std::make_shared<const std::string>(png.buffer().toStdString());
  loaded.width = read.whole.width();
  loaded.height = read.whole.height();
  return loaded;
}

forms::PictureHead QtPictures::Look(const std::string& path) {
  const MachinePicture read = LookAtMachinePicture(path);
  if (read.whole.isEmpty()) return {.fault = read.fault};
  return {read.fault, read.whole.width(), read.whole.height()};
}

}  // namespace tarnwell::desktop
