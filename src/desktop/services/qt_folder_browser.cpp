#include "desktop/services/qt_folder_browser.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include "desktop/widgets/text.h"
#include "storage/file_system.h"
#include "storage/whole_file_save.h"

namespace tarnwell::desktop {
namespace {

constexpr char kFirstLetter = 'c';
constexpr qsizetype kMostDrives = 'z' - kFirstLetter + 1;

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

std::string DriveOf(qsizetype place) {
  return {static_cast<char>(kFirstLetter + static_cast<int>(place)), ':'};
}

// A folder's or file's name that the core can hold and a path can tell from others.
bool IsSpeakable(const QString& name) {
  return !name.contains('\\') && FromCore(ToCore(name)) == name;
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

QStringList MountedVolumes() {
  QStringList roots;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (HoldsUserFiles(volume)) roots << volume.rootPath();
  }
  roots.removeDuplicates();
  roots.sort();
  return roots;
}

QtFolderBrowser::QtFolderBrowser(QString program_folder, Volumes volumes)
    : program_folder_(QDir::cleanPath(QFileInfo(program_folder).absoluteFilePath())),
      volumes_(std::move(volumes)) {}

std::vector<std::string> QtFolderBrowser::Drives() {
  roots_ = volumes_().mid(0, kMostDrives);
  std::vector<std::string> drives;
  for (qsizetype i = 0; i < roots_.size(); ++i) drives.push_back(DriveOf(i));
  return drives;
}

std::string QtFolderBrowser::ProgramPath() {
  if (roots_.isEmpty()) Drives();
  qsizetype drive = -1;
  for (qsizetype i = 0; i < roots_.size(); ++i) {
    const QString prefix = roots_[i].endsWith('/') ? roots_[i] : roots_[i] + '/';
    const bool inside = (program_folder_ + '/').startsWith(prefix);
    if (inside && (drive < 0 || roots_[i].size() > roots_[drive].size())) drive = i;
  }
  if (drive < 0) return DriveOf(0) + "\\";
  const QString below = QDir(roots_[drive]).relativeFilePath(program_folder_);
  if (below == QLatin1String(".")) return DriveOf(drive) + "\\";
  return DriveOf(drive) + "\\" + ToCore(QString(below).replace('/', '\\'));
}

QString QtFolderBrowser::LocalPath(const std::string& path) const {
  if (path.size() < 2 || path[1] != ':') return {};
  const qsizetype drive = (path[0] | 0x20) - kFirstLetter;
  if (drive < 0 || drive >= roots_.size()) return {};
  const QString below = FromCore(path.substr(2)).replace('\\', '/');
  return QDir::cleanPath(roots_[drive] + '/' + below);
}

std::optional<std::vector<std::string>> QtFolderBrowser::Folders(const std::string& path) {
  return Names(LocalPath(path), QDir::Dirs);
}

std::optional<std::vector<std::string>> QtFolderBrowser::Files(const std::string& path) {
  return Names(LocalPath(path), QDir::Files);
}

bool QtFolderBrowser::WriteFile(const std::string& path, std::string_view content) {
  const QString local = LocalPath(path);
  if (local.isEmpty()) return false;
  return storage::SaveWhole(storage::RealFileSystem(), QFileInfo(local).path().toStdString(),
                            local.toStdString(), content);
}

}  // namespace tarnwell::desktop
