// What the screens with pictures keep between runs.

#pragma once

#include <string>

#include "storage/program_folder.h"
#include "storage/tagged_value.h"

namespace tarnwell::settings {

enum class PictureFolder {
  kPeople,  // contacts and employees
  kVehicles,
  kDocumentImages,
};

// The folder from which a picture was taken last; empty for none.
std::string ReadPictureFolder(storage::ProgramFolder& folder, PictureFolder screens);
bool WritePictureFolder(storage::ProgramFolder& folder, PictureFolder screens,
                        const std::string& path);

// The value that is supplied with the program for document images.
std::string ReadImageStartValue(storage::ProgramFolder& folder);

// The toolbars of document images; empty when they were never switched.
enum class ImageToolbar { kTop, kSide };
storage::TaggedValue ReadImageToolbar(storage::ProgramFolder& folder, ImageToolbar toolbar);
void WriteImageToolbar(storage::ProgramFolder& folder, ImageToolbar toolbar,
                       const storage::TaggedValue& shown);

}  // namespace tarnwell::settings
