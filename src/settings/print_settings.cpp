#include "settings/print_settings.h"

#include "settings/files.h"
#include "text/letters.h"

namespace tarnwell::settings {
namespace {

constexpr std::size_t kLongestName = 36;  // what a record has room for

// Record numbers in GColor3.Fil.
int RecordOf(GuideLines screens) {
  switch (screens) {
    case GuideLines::kMainScreens:
      return 11;
    case GuideLines::kYearSheets:
      return 12;
    case GuideLines::kVehicles:
      return 14;
    case GuideLines::kDisplays:
      return 16;
    case GuideLines::kCalendarSheet:
      return 56;
    case GuideLines::kPlannerMonth:
      return 59;
  }
  return 0;
}

// The font's record in GColor4.Fil; its size is in the next one.
int RecordOf(PrinterFont owner) {
  switch (owner) {
    case PrinterFont::kVehicles:
      return 18;
    case PrinterFont::kYearSheets:
      return 20;
    case PrinterFont::kPlannerDay:
      return 22;
    case PrinterFont::kPlannerMonth:
      return 24;
    case PrinterFont::kEmployeeDisplay:
      return 28;
  }
  return 0;
}

}  // namespace

int ReadGuideLines(storage::ProgramFolder& folder, GuideLines screens) {
  return text::Trim(OpenGColor3(folder).GetText(RecordOf(screens))) == "1" ? 1 : 0;
}

storage::Outcome WriteGuideLines(storage::ProgramFolder& folder, GuideLines screens, int option) {
  return WriteText(folder, {storage::file_names::kGColor3, RecordOf(screens)},
                   option == 1 ? "1" : "0");
}

StoredFont ReadPrinterFont(storage::ProgramFolder& folder, PrinterFont owner) {
  auto file = OpenGColor4(folder);
  const int record = RecordOf(owner);
  return {text::Trim(storage::TextOf(file.GetTagged(record))),
          storage::NumberOf(file.GetTagged(record + 1))};
}

storage::Outcome WritePrinterFont(storage::ProgramFolder& folder, PrinterFont owner,
                                  const StoredFont& font) {
  if (font.name.size() > kLongestName) return {};
  auto file = OpenGColor4(folder);
  const int record = RecordOf(owner);
  return file.Finish(file.PutTagged(record, font.name) &&
                     file.PutTagged(record + 1, static_cast<float>(font.size)));
}

}  // namespace tarnwell::settings
