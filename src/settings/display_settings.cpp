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
void WriteSize(storage::ProgramFolder& folder, Number height, Number width) {
  auto file = OpenGColor3(folder);
  file.PutTagged(kHeight, height);
  file.PutTagged(kWidth, width);
}

}  // namespace

Display ReadDisplay(storage::ProgramFolder& folder) {
  auto file = OpenGColor3(folder);
  return {text::Trim(file.GetText(kSmallerScreen)) == "Yes",
          storage::NumberOf(file.GetTagged(kHeight)), storage::NumberOf(file.GetTagged(kWidth))};
}

void WriteSmallerScreen(storage::ProgramFolder& folder, bool smaller_screen) {
  OpenGColor3(folder).PutText(kSmallerScreen, smaller_screen ? "Yes" : "No");
}

void WriteWindowSize(storage::ProgramFolder& folder, float height, float width) {
  WriteSize(folder, height, width);
}

void WriteDefaultWindowSize(storage::ProgramFolder& folder) {
  WriteSize<std::int16_t>(folder, kDefaultHeight, kDefaultWidth);
}

storage::TaggedValue ReadStartBackground(storage::ProgramFolder& folder) {
  return storage::RecordFile(folder, storage::file_names::kHinv3, kStartRecordLength)
      .GetTagged(kStartBackground);
}

void WriteStartBackground(storage::ProgramFolder& folder, const storage::TaggedValue& color) {
  storage::RecordFile(folder, storage::file_names::kHinv3, kStartRecordLength)
      .PutTagged(kStartBackground, color);
}

}  // namespace tarnwell::settings
