// What the screens with pictures keep between runs.

#pragma once

#include <optional>
#include <string>

#include "settings/stored_color.h"
#include "storage/program_folder.h"

namespace tarnwell::settings {

enum class PictureFolder {
  kPeople,  // contacts and employees
  kVehicles,
  kDocumentImages,
};

// The folder from which a picture was taken last; empty for none.
std::string ReadPictureFolder(storage::ProgramFolder& folder, PictureFolder screens);
storage::Outcome WritePictureFolder(storage::ProgramFolder& folder, PictureFolder screens,
                                    const std::string& path);

// What is supplied as the background of document images' window: a wallpaper, or nothing.
StoredColor ReadImageBackground(storage::ProgramFolder& folder);

// The toolbars of document images are shown until they are hidden.
enum class ImageToolbar { kTop, kSide };
bool ReadImageToolbarShown(storage::ProgramFolder& folder, ImageToolbar toolbar);
// Empty for a toolbar that was never switched.
storage::Outcome WriteImageToolbarShown(storage::ProgramFolder& folder, ImageToolbar toolbar,
                                        std::optional<bool> shown);

}  // namespace tarnwell::settings
