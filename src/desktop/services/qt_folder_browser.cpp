#include "desktop/services/qt_folder_browser.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <algorithm>

#include "desktop/widgets/text.h"
#include "storage/file_system.h"
#include "storage/whole_file_save.h"

namespace tarnwell::desktop {
namespace {

bool HoldsUserFiles(const QStorageInfo& volume) {
  if (!volume.isValid() || !volume.isReady()) return false;
  if (volume.isRoot()) return true;
  const QString root = volume.rootPath();
  if (root.startsWith(QLatin1String("/boot")) || root.startsWith(QLatin1String("/snap"))) {
    return false;
  }
  // A disk, or a share as "server:/folder" or "//server/share". The system's own file systems have
  // a plain name in the device's place.
  return QFileInfo(root).isDir() && volume.device().contains('/');
}

// A folder's or file's name that the core can hold and a path can tell from others.
bool IsSpeakable(const QString& name) { return FromCore(ToCore(name)) == name; }

// Only an absolute path names a folder.
QString LocalPath(const std::string& path) {
  const QString local = FromCore(path);
  return QDir::isAbsolutePath(local) ? QDir::cleanPath(local) : QString();
}

void AddPlace(std::vector<forms::Place>& places, const QString& path, const QString& name) {
  const forms::Place place{ToCore(name), ToCore(path)};
  const bool known = std::ranges::any_of(
      places, [&](const forms::Place& other) { return other.path == place.path; });
  if (!known && IsSpeakable(path) && IsSpeakable(name) && QFileInfo(path).isDir()) {
    places.push_back(place);
  }
}

std::optional<std::vector<std::string>> Names(const QString& folder, QDir::Filters kind) {
  const QFileInfo info(folder);
  if (folder.isEmpty() || !info.isDir() || !info.isReadable() || !info.isExecutable()) {
    return std::nullopt;
  }
  std::vector<std::string> names;
  const auto sorting = QDir::Name | QDir::IgnoreCase;
  for (const QString& name : QDir(folder).entryList(kind | QDir::NoDotAndDotDot, sorting)) {
    if (IsSpeakable(name)) names.push_back(ToCore(name));
  }
  return names;
}

}  // namespace

std::vector<forms::Place> SystemPlaces() {
  std::vector<forms::Place> places;
  const QString home = QDir::homePath();
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  AddPlace(places, documents, documents);
  AddPlace(places, home, home);
  QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
  volumes.removeIf([](const QStorageInfo& volume) { return !HoldsUserFiles(volume); });
  std::ranges::sort(volumes, {}, &QStorageInfo::rootPath);
  for (const QStorageInfo& volume : volumes) {
    const QString root = volume.rootPath();
    // A stick goes by the name of the folder that was made for it.
    AddPlace(places, root, volume.isRoot() ? root : QFileInfo(root).fileName());
  }
  return places;
}

QtFolderBrowser::QtFolderBrowser(const QString& program_folder, PlacesSource places)
    : program_folder_(QDir::cleanPath(QFileInfo(program_folder).absoluteFilePath())),
      places_(std::move(places)) {}

std::string QtFolderBrowser::ProgramPath() { return ToCore(program_folder_); }

std::optional<std::vector<std::string>> QtFolderBrowser::Folders(const std::string& path) {
  return Names(LocalPath(path), QDir::Dirs);
}

std::optional<std::vector<std::string>> QtFolderBrowser::Files(const std::string& path) {
  return Names(LocalPath(path), QDir::Files);
}

int QtFolderBrowser::FilesLeftOut(const std::string& path) {
  const QString folder = LocalPath(path);
  if (folder.isEmpty()) return 0;
  const QStringList names = QDir(folder).entryList(QDir::Files);
  return static_cast<int>(
      std::ranges::count_if(names, [](const QString& name) { return !IsSpeakable(name); }));
}

storage::Outcome QtFolderBrowser::WriteFile(const std::string& path, std::string_view content) {
  const QString local = LocalPath(path);
  if (local.isEmpty()) return storage::Fault::kMissing;
  storage::FileSystem& files = storage::RealFileSystem();
  const std::string folder = QFileInfo(local).path().toStdString();
  if (storage::SaveWhole(files, folder, local.toStdString(), content)) return {};
  return files.fault() == storage::Fault::kNone ? storage::Fault::kBroken : files.fault();
}

}  // namespace tarnwell::desktop
