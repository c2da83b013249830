#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "forms/folder_browser.h"

namespace tarnwell::desktop {

// Where the machine's volumes are mounted, "/" first; those that hold no user's files are left out.
QStringList MountedVolumes();

// A drive's letter holds from one call of Drives to the next, as volumes come and go.
class QtFolderBrowser : public forms::FolderBrowser {
 public:
  using Volumes = std::function<QStringList()>;

  explicit QtFolderBrowser(QString program_folder, Volumes volumes = MountedVolumes);

  std::vector<std::string> Drives() override;
  std::string ProgramPath() override;
  std::optional<std::vector<std::string>> Folders(const std::string& path) override;
  std::optional<std::vector<std::string>> Files(const std::string& path) override;
  bool WriteFile(const std::string& path, std::string_view content) override;

 private:
  // Empty for a drive that there isn't.
  QString LocalPath(const std::string& path) const;

  QString program_folder_;
  Volumes volumes_;
  QStringList roots_;  // of the drives from "c:" on
};

}  // namespace tarnwell::desktop
