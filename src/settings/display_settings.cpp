#include "settings/display_settings.h"

#include "settings/files.h"
#include "storage/file_names.h"
#include "storage/record_file.h"
#include "text/letters.h"

namespace tarnwell::settings {
namespace {

constexpr int kSmallerScreen = 35;
constexpr int kHeight = 36;
constexpr int kWidth = 37;

constexpr int kStartRecordLength = 10;
constexpr int kStartBackground = 3;

template <typename Number>
storage::Outcome WriteSize(storage::ProgramFolder& folder, Number height, Number width) {
  auto file = OpenGColor3(folder);
  return file.Finish(file.PutTagged(kHeight, height) && file.PutTagged(kWidth, width));
}

}  // namespace

Display ReadDisplay(storage::ProgramFolder& folder) {
  auto file = OpenGColor3(folder);
  return {text::Trim(file.GetText(kSmallerScreen)) == "Yes",
          storage::NumberOf(file.GetTagged(kHeight)), storage::NumberOf(file.GetTagged(kWidth))};
}

storage::Outcome WriteSmallerScreen(storage::ProgramFolder& folder, bool smaller_screen) {
  return WriteText(folder, {storage::file_names::kGColor3, kSmallerScreen},
                   smaller_screen ? "Yes" : "No");
}

storage::Outcome WriteWindowSize(storage::ProgramFolder& folder, float height, float width) {
  return WriteSize(folder, height, width);
}

storage::Outcome WriteDefaultWindowSize(storage::ProgramFolder& folder) {
  return WriteSize<std::int16_t>(folder, kDefaultHeight, kDefaultWidth);
}

bool IsFirstStart(storage::ProgramFolder& folder) {
  return !folder.Exists(storage::file_names::kHinv3);
}

storage::TaggedValue ReadStartBackground(storage::ProgramFolder& folder) {
  return storage::RecordFile(folder, storage::file_names::kHinv3, kStartRecordLength)
      .GetTagged(kStartBackground);
}

storage::Outcome WriteStartBackground(storage::ProgramFolder& folder,
                                      const storage::TaggedValue& color) {
  storage::RecordFile file(folder, storage::file_names::kHinv3, kStartRecordLength);
  return file.Finish(file.PutTagged(kStartBackground, color));
}

}  // namespace tarnwell::settings
