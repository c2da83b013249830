#include "desktop/services/qt_volumes.h"

#include <QStorageInfo>
#include <filesystem>

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

std::filesystem::path Local(const std::string& path) { return FromCore(path).toStdString(); }

QStorageInfo VolumeOf(const std::string& path) {
  return QStorageInfo(FromCore(path));  // asks the system each time: disks come and go
}

}  // namespace

std::optional<std::uint64_t> QtVolumes::FreeBytes(const std::string& path) {
  const QStorageInfo volume = VolumeOf(path);
  if (!volume.isValid() || !volume.isReady() || volume.bytesAvailable() < 0) return std::nullopt;
  return static_cast<std::uint64_t>(volume.bytesAvailable());
}

std::string QtVolumes::MountOf(const std::string& path) {
  const QStorageInfo volume = VolumeOf(path);
  return volume.isValid() ? ToCore(volume.rootPath()) : std::string();
}

// By the folders themselves, not by their names: one may be mounted in two places.
bool QtVolumes::LiesIn(const std::string& path, const std::string& folder) {
  std::error_code failed;
  std::filesystem::path place = std::filesystem::canonical(Local(path), failed);
  if (failed) return true;
  for (;; place = place.parent_path()) {
    const bool is_same = std::filesystem::equivalent(place, Local(folder), failed);
    if (is_same || failed) return true;
    if (place == place.parent_path()) return false;
  }
}

}  // namespace tarnwell::desktop
