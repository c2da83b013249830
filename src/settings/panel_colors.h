// Colours of panels, of texts and of text fields.

#pragma once

#include <functional>

#include "settings/stored_color.h"
#include "storage/program_folder.h"

namespace tarnwell::settings {

// The functions of the program that keep a panel colour of their own.
enum class PanelColor {
  kPlanner,
  kCalendarSheet,
  kContacts,
  kBudget,
  kContactDisplay,
  kEmployees,
  kEmployeeDisplay,
  kSickLeave,
  kVacation,
  kVehicles,
  kPicturePages,  // of contacts and employees, who share one
  kWorkArea,
  kDocumentImages,
};

StoredColor ReadPanelColor(storage::ProgramFolder& folder, PanelColor function);
storage::Outcome WritePanelColor(storage::ProgramFolder& folder, PanelColor function,
                                 const StoredColor& color);

// Writes the colour for all functions but the work area, and into the records that no function
// reads any more: backup sets hold them. Calls `yield` after each file but the last.
// What the disk refuses doesn't keep the others from being written.
storage::Outcome WritePanelColorForAll(storage::ProgramFolder& folder, const StoredColor& color,
                                       const std::function<void()>& yield);

// The text colour of documents and entry areas.
StoredColor ReadTextColor(storage::ProgramFolder& folder);
storage::Outcome WriteTextColor(storage::ProgramFolder& folder, std::int32_t color);

// Backgrounds of entry areas, and one text colour.
enum class FieldColor {
  kBudget,
  kDocumentImages,
  kPicturePages,
  kPicturePagesText,
};

StoredColor ReadFieldColor(storage::ProgramFolder& folder, FieldColor function);
storage::Outcome WriteFieldColor(storage::ProgramFolder& folder, FieldColor function,
                                 const StoredColor& color);

}  // namespace tarnwell::settings
