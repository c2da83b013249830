// A vehicle on paper, section by section, and the sheet for notes at the vehicle.

#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "print/page_engine.h"
#include "text/date.h"
#include "vehicles/unit_words.h"
#include "vehicles/vehicle_files.h"
#include "vehicles/vehicle_sheet.h"

namespace tarnwell::vehicles {

struct PrintedVehicle {
  std::string name;  // of its file
  VehicleSheet sheet;
  std::vector<HistoryEntry> maintenance = {};
  std::vector<HistoryEntry> repairs = {};
  std::vector<FuelEntry> fuel = {};
  std::shared_ptr<const std::string> picture = {};  // a PNG file; null for none

  bool HasSchedule() const;
};

inline constexpr double kLargerTitle = 2;  // points more than the text

// At the head of each page: "2019 Ford E150 Van (Van 2)".
std::string VehicleTitle(const PrintedVehicle& vehicle);
// The same in the report of all vehicles: "2019 Ford E150 Van (VIN - 1FT)".
std::string VinTitle(const PrintedVehicle& vehicle);
// The title and when it was printed, inside a border where that is wanted.
void VehicleHead(print::PageEngine& engine, const std::string& title, text::Date printed,
                 bool with_border);
// "Page 2" at the right of each page's second line, where there are several.
void NumberPages(print::PageEngine& engine);

void InformationSection(print::PageEngine& engine, const VehicleSheet& sheet);
// What is due is red, as on the screen.
void MaintenanceSection(print::PageEngine& engine, const VehicleSheet& sheet,
                        const UnitWords& words, text::Date today);
void RepairsSection(print::PageEngine& engine, std::span<const HistoryEntry> entries,
                    const UnitWords& words);
void MaintenanceHistorySection(print::PageEngine& engine, const std::vector<HistoryEntry>& entries,
                               const UnitWords& words);
// Both histories, joined.
void AllHistorySection(print::PageEngine& engine, const std::vector<HistoryEntry>& entries,
                       const UnitWords& words);
void FuelSection(print::PageEngine& engine, std::span<const FuelEntry> entries,
                 const UnitWords& words);
// As large as a third of the page.
void PictureSection(print::PageEngine& engine, const std::shared_ptr<const std::string>& png);

// On one page, in smaller letters where it takes them.
void Worksheet(print::PageEngine& engine, const UnitWords& words);

}  // namespace tarnwell::vehicles
