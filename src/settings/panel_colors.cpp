#include "settings/panel_colors.h"

#include <initializer_list>

#include "settings/files.h"

namespace tarnwell::settings {
namespace {

using storage::file_names::kGColor1;
using storage::file_names::kGColor2;
using storage::file_names::kGColor3;

constexpr int kTextColor = 4;  // GColor3.Fil

struct File {
  std::string_view name;
  std::initializer_list<int> records;
};

constexpr std::initializer_list<int> kRecords1 = {10, 11, 12, 13, 16, 17, 18, 22, 27,
                                                  32, 36, 38, 40, 49, 54, 56, 70, 80};
constexpr std::initializer_list<int> kRecords2 = {5, 9, 12, 16, 19, 20, 22, 25, 40};
constexpr std::initializer_list<int> kRecords3 = {8, 17, 91, 92, 100, 101, 102, 103, 104, 105};
constexpr File kForAll[] = {{kGColor1, kRecords1}, {kGColor2, kRecords2}, {kGColor3, kRecords3}};

RecordPlace PlaceOf(PanelColor function) {
  switch (function) {
    case PanelColor::kPlanner:
      return {kGColor1, 10};
    case PanelColor::kCalendarSheet:
      return {kGColor1, 11};
    case PanelColor::kContacts:
      return {kGColor1, 12};
    case PanelColor::kBudget:
      return {kGColor1, 13};
    case PanelColor::kContactDisplay:
      return {kGColor1, 16};
    case PanelColor::kEmployees:
      return {kGColor1, 17};
    case PanelColor::kEmployeeDisplay:
      return {kGColor1, 18};
    case PanelColor::kSickLeave:
      return {kGColor1, 22};
    case PanelColor::kVacation:
      return {kGColor1, 27};
    case PanelColor::kVehicles:
      return {kGColor1, 32};
    case PanelColor::kPicturePages:
      return {kGColor2, 40};
    case PanelColor::kWorkArea:
      return {kGColor3, 2};
    case PanelColor::kDocumentImages:
      return {kGColor3, 17};
  }
  return {};
}

RecordPlace PlaceOf(FieldColor function) {
  switch (function) {
    case FieldColor::kBudget:
      return {kGColor1, 15};
    case FieldColor::kDocumentImages:
      return {kGColor3, 19};
    case FieldColor::kPicturePages:
      return {kGColor2, 41};
    case FieldColor::kPicturePagesText:
      return {kGColor2, 42};
  }
  return {};
}

}  // namespace

StoredColor ReadPanelColor(storage::ProgramFolder& folder, PanelColor function) {
  return StoredColor::FromText(ReadText(folder, PlaceOf(function)));
}

storage::Outcome WritePanelColor(storage::ProgramFolder& folder, PanelColor function,
                                 const StoredColor& color) {
  return WriteText(folder, PlaceOf(function), color.Text());
}

storage::Outcome WritePanelColorForAll(storage::ProgramFolder& folder, const StoredColor& color,
                                       const std::function<void()>& yield) {
  storage::Outcome outcome;
  for (const File& file : kForAll) {
    auto records = OpenColors(folder, file.name);
    bool all_put = true;
    for (int record : file.records) all_put &= records.PutText(record, color.Text());
    if (const auto written = records.Finish(all_put); !written) outcome = written;
    if (yield && file.name != kGColor3) yield();
  }
  return outcome;
}

StoredColor ReadTextColor(storage::ProgramFolder& folder) {
  const auto value = OpenGColor3(folder).GetTagged(kTextColor);
  if (storage::IsEmpty(value)) return {};
  const double number = storage::NumberOf(value);
  return number >= 0 && number <= 0xFFFFFF ? StoredColor::Number(static_cast<std::int32_t>(number))
                                           : StoredColor();
}

storage::Outcome WriteTextColor(storage::ProgramFolder& folder, std::int32_t color) {
  auto file = OpenGColor3(folder);
  return file.Finish(file.PutTagged(kTextColor, color));
}

StoredColor ReadFieldColor(storage::ProgramFolder& folder, FieldColor function) {
  return StoredColor::FromText(ReadText(folder, PlaceOf(function)));
}

storage::Outcome WriteFieldColor(storage::ProgramFolder& folder, FieldColor function,
                                 const StoredColor& color) {
  return WriteText(folder, PlaceOf(function), color.Text());
}

}  // namespace tarnwell::settings
