// What the Print Options panels keep between runs.

#pragma once

#include <string>

#include "storage/program_folder.h"

namespace tarnwell::settings {

// Who shares one choice of guide lines.
enum class GuideLines {
  kMainScreens,  // work area, employees, tools, document images, planner's day, contacts
  kYearSheets,   // leave trackers, budget
  kVehicles,
  kDisplays,  // display grids of contacts and employees
  kCalendarSheet,
  kPlannerMonth,
};

// 0 without, 1 with margin guides in the preview. Anything else on the disk reads as 0.
int ReadGuideLines(storage::ProgramFolder& folder, GuideLines screens);
storage::Outcome WriteGuideLines(storage::ProgramFolder& folder, GuideLines screens, int option);

// Who shares one printer font.
enum class PrinterFont {
  kVehicles,
  kYearSheets,  // budget, leave trackers
  kPlannerDay,
  kPlannerMonth,
  kEmployeeDisplay,
};

// With a name longer than 36 characters it isn't stored, which is no trouble of the disk's.
struct StoredFont {
  std::string name;  // empty when none is stored
  double size = 0;   // points; 0 when none is stored

  friend bool operator==(const StoredFont&, const StoredFont&) = default;
};

StoredFont ReadPrinterFont(storage::ProgramFolder& folder, PrinterFont owner);
storage::Outcome WritePrinterFont(storage::ProgramFolder& folder, PrinterFont owner,
                                  const StoredFont& font);

}  // namespace tarnwell::settings
