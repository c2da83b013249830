#include "desktop/services/dictionary_folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarnwell::desktop {
namespace {

QStringList OwnFolders(const Folders& folders) {
  QStringList own{QDir(folders.user).filePath(QStringLiteral("dictionaries"))};
  if (!folders.supplied.isEmpty()) {
    own << QDir(folders.supplied).filePath(QStringLiteral("dictionaries"));
  }
  return own;
}

// In the data folders of the user and of the system.
QStringList SystemFolders(const QStringList& names) {
  QStringList found;
  for (const QString& name : names) {
    found << QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, name,
                                       QStandardPaths::LocateDirectory);
    found << QStringLiteral("/usr/share/") + name;
  }
  found.removeDuplicates();
  return found;
}

}  // namespace

QStringList DictionaryFolders(const Folders& folders) {
  return OwnFolders(folders) +
         SystemFolders({QStringLiteral("hunspell"), QStringLiteral("myspell/dicts")});
}

QStringList ThesaurusFolders(const Folders& folders) {
  return OwnFolders(folders) +
         SystemFolders({QStringLiteral("mythes"), QStringLiteral("myspell/dicts")});
}

std::optional<std::pair<QString, QString>> FindPair(const QStringList& folders,
                                                    const QString& first, const QString& second) {
  for (const QString& folder : folders) {
    const QDir place(folder);
    const QFileInfo one(place.filePath(first));
    const QFileInfo other(place.filePath(second));
    if (one.isFile() && one.isReadable() && other.isFile() && other.isReadable()) {
      return std::pair(one.filePath(), other.filePath());
    }
  }
  return std::nullopt;
}

}  // namespace tarnwell::desktop
