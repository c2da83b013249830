#include "settings/vehicle_settings.h"

#include "settings/files.h"
#include "text/letters.h"

namespace tarnwell::settings {
namespace {

constexpr RecordPlace kDistanceUnit{storage::file_names::kGColor3, 40};
constexpr RecordPlace kDateChecker{storage::file_names::kGColor1, 26};
constexpr const char* kOff = "OFF";

}  // namespace

DistanceUnit ReadDistanceUnit(storage::ProgramFolder& folder) {
  return text::Trim(ReadText(folder, kDistanceUnit)) == "1" ? DistanceUnit::kKilometers
                                                            : DistanceUnit::kMiles;
}

storage::Outcome WriteDistanceUnit(storage::ProgramFolder& folder, DistanceUnit unit) {
  return WriteText(folder, kDistanceUnit, unit == DistanceUnit::kKilometers ? "1" : "0");
}

bool ReadDateCheckerOn(storage::ProgramFolder& folder) {
  return text::Trim(ReadText(folder, kDateChecker)) != kOff;
}

storage::Outcome WriteDateCheckerOn(storage::ProgramFolder& folder, bool on) {
  return WriteText(folder, kDateChecker, on ? "" : kOff);
}

}  // namespace tarnwell::settings
