// Where dictionaries lie.

#pragma once

#include <QStringList>
#include <optional>
#include <utility>

#include "desktop/services/folders.h"

namespace tarnwell::desktop {

// The folders of spelling dictionaries, and those of thesauri: "dictionaries" beside the program's
// own data first, for copies that carry their own, then the system's.
QStringList DictionaryFolders(const Folders& folders);
QStringList ThesaurusFolders(const Folders& folders);

// The paths of two files that belong together, in the first folder that has both.
std::optional<std::pair<QString, QString>> FindPair(const QStringList& folders,
                                                    const QString& first, const QString& second);

}  // namespace tarnwell::desktop
