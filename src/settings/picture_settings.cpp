#include "settings/picture_settings.h"

#include "settings/files.h"
#include "storage/sequential_file.h"

namespace tarnwell::settings {
namespace {

namespace file_names = storage::file_names;

std::string_view FileOf(PictureFolder screens) {
  switch (screens) {
    case PictureFolder::kPeople:
      return file_names::kPersonPictureFolder;
    case PictureFolder::kVehicles:
      return file_names::kVehiclePictureFolder;
    case PictureFolder::kDocumentImages:
      return file_names::kImageFolder;
  }
  return {};
}

struct ToolbarPlace {
  std::string_view file;
  int record_length;
  int record;
};

ToolbarPlace PlaceOf(ImageToolbar toolbar) {
  if (toolbar == ImageToolbar::kTop) return {file_names::kGColor1, 20, 55};
  return {file_names::kGhinv1, 10, 10};
}

storage::RecordFile Open(storage::ProgramFolder& folder, const ToolbarPlace& place) {
  return storage::RecordFile(folder, place.file, place.record_length);
}

}  // namespace

std::string ReadPictureFolder(storage::ProgramFolder& folder, PictureFolder screens) {
  return storage::SequentialReader(folder, FileOf(screens)).Next();
}

bool WritePictureFolder(storage::ProgramFolder& folder, PictureFolder screens,
                        const std::string& path) {
  storage::SequentialWriter file;
  file.WriteText(path);
  return static_cast<bool>(file.Save(folder, FileOf(screens)));
}

std::string ReadImageStartValue(storage::ProgramFolder& folder) {
  return storage::SequentialReader(folder, file_names::kImageStartValue).Next();
}

storage::TaggedValue ReadImageToolbar(storage::ProgramFolder& folder, ImageToolbar toolbar) {
  const ToolbarPlace place = PlaceOf(toolbar);
  return Open(folder, place).GetTagged(place.record);
}

void WriteImageToolbar(storage::ProgramFolder& folder, ImageToolbar toolbar,
                       const storage::TaggedValue& shown) {
  const ToolbarPlace place = PlaceOf(toolbar);
  Open(folder, place).PutTagged(place.record, shown);
}

}  // namespace tarnwell::settings
