#include "desktop/services/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "desktop/widgets/text.h"
#include "storage/file_names.h"

namespace tarnwell::desktop {
namespace {

constexpr int kFoldersAbove = 4;

bool CarriesData(const QDir& folder) {
  // Name filters don't heed capitals.
  const QStringList marks{QStringLiteral("portable"), FromCore(storage::file_names::kHinv3)};
  return !folder.entryList(marks, QDir::Files).isEmpty();
}

bool IsPortable(const QString& folder) {
  return CarriesData(QDir(folder)) && QFileInfo(folder).isWritable();
}

QString SuppliedFolder(const QString& executable_folder) {
  QDir folder(executable_folder);
  if (const QString installed = folder.filePath(QStringLiteral("../share/tarnwell"));
      QFileInfo(installed).isDir()) {
    return QDir::cleanPath(installed);
  }
  for (int above = 0; above <= kFoldersAbove; ++above) {
    if (folder.exists(QStringLiteral("data/tarnwell.svg")))
      return folder.filePath(QStringLiteral("data"));
    if (!folder.cdUp()) break;
  }
  return {};
}

}  // namespace

Folders ChooseFolders(const QString& executable_folder, const QString& per_user) {
  const bool portable = IsPortable(executable_folder);
  if (!portable) QDir().mkpath(per_user);
  return {portable ? executable_folder : per_user, SuppliedFolder(executable_folder), portable};
}

void KeepTogether(const Folders& folders) {
  if (folders.portable) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folders.user);
  }
}

Folders ChooseFolders() {
  return ChooseFolders(QCoreApplication::applicationDirPath(),
                       QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

}  // namespace tarnwell::desktop
