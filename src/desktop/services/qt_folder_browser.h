#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "forms/folder_browser.h"

namespace tarnwell::desktop {

// The user's home and documents, and where the machine's volumes are mounted; those that hold no
// user's files are left out.
std::vector<forms::Place> SystemPlaces();

class QtFolderBrowser : public forms::FolderBrowser {
 public:
  using PlacesSource = std::function<std::vector<forms::Place>()>;

  explicit QtFolderBrowser(const QString& program_folder, PlacesSource places = SystemPlaces);

  std::vector<forms::Place> Places() override { return places_(); }
  std::string ProgramPath() override;
  std::optional<std::vector<std::string>> Folders(const std::string& path) override;
  std::optional<std::vector<std::string>> Files(const std::string& path) override;
  int FilesLeftOut(const std::string& path) override;
  storage::Outcome WriteFile(const std::string& path, std::string_view content) override;

 private:
  QString program_folder_;
  PlacesSource places_;
};

}  // namespace tarnwell::desktop
