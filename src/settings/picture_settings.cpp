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

// Where a toolbar is stored, and the number that says it is shown.
struct ToolbarPlace {
  std::string_view file;
  int record_length;
  int record;
  std::int16_t shown;
};

constexpr std::int16_t kHidden = 0;

ToolbarPlace PlaceOf(ImageToolbar toolbar) {
  if (toolbar == ImageToolbar::kTop) return {file_names::kGColor1, 20, 55, 99};
  return {file_names::kGhinv1, 10, 10, 88};
}

}  // namespace

std::string ReadPictureFolder(storage::ProgramFolder& folder, PictureFolder screens) {
  return storage::SequentialReader(folder, FileOf(screens)).Next();
}

storage::Outcome WritePictureFolder(storage::ProgramFolder& folder, PictureFolder screens,
                                    const std::string& path) {
  storage::SequentialWriter file;
  file.WriteText(path);
  return file.Save(folder, FileOf(screens));
}

StoredColor ReadImageBackground(storage::ProgramFolder& folder) {
  const auto stored =
      StoredColor::FromText(storage::SequentialReader(folder, file_names::kImageBackground).Next());
  return stored.wallpaper() ? stored : StoredColor();
}

bool ReadImageToolbarShown(storage::ProgramFolder& folder, ImageToolbar toolbar) {
  const ToolbarPlace place = PlaceOf(toolbar);
  storage::RecordFile file(folder, place.file, place.record_length);
  const auto value = file.GetTagged(place.record);
  return storage::IsEmpty(value) || storage::NumberOf(value) != kHidden;
}

storage::Outcome WriteImageToolbarShown(storage::ProgramFolder& folder, ImageToolbar toolbar,
                                        std::optional<bool> shown) {
  const ToolbarPlace place = PlaceOf(toolbar);
  storage::RecordFile file(folder, place.file, place.record_length);
  storage::TaggedValue value;
  if (shown) value = *shown ? place.shown : kHidden;
  return file.Finish(file.PutTagged(place.record, value));
}

}  // namespace tarnwell::settings
