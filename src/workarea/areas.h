// The fixed structure of the hub: its areas and the documents that belong to them.

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "parts/main_buttons.h"

namespace tarnwell::workarea {

// The areas by the index of their button.
enum Area : int {
  kNoArea = 0,
  kToDoList = 1,
  kAgreements = 2,
  kEmployeeDocuments = 3,
  kPolicies = 4,
  kBudget = 5,
  kWorksheets = 7,
  kRecoveryPlan = 8,
  kJobDescriptions = 9,
  kDisciplinaryActions = 10,
  kEvaluations = 11,
  kEmployeeEntry = 12,
  kEmployeeDisplay = 13,
  kSickLeave = 14,
  kVacation = 15,
  kArchive = 99,  // has no button: the menu leads to it
};

struct AreaButton {
  Area area;
  std::string_view caption;
  std::string_view tool_tip;
  parts::MainArea under;       // kCompanyData or kEmployeeData
  std::string_view form = {};  // the screen that it shows, instead of an area of the hub
};

// In the order in which they stand under each other.
std::span<const AreaButton> AreaButtons();
// The name of the screen that the area's button shows; empty for an area of the hub.
std::string_view FormOf(Area area);

struct DocumentButton {
  int index;  // the document's number is that of the group plus this
  std::string_view caption;
  std::string_view tool_tip;  // trimmed, it is the document's title
};

// A row of numbered documents. Indices without a document have no button.
struct DocumentGroup {
  Area area;
  std::string_view buttons;  // fixed name of the buttons
  int base;                  // number of the document of index 0
  std::string_view heading;  // what the title on the screen begins with
  std::span<const DocumentButton> documents;
};

std::span<const DocumentGroup> DocumentGroups();

// The title of a numbered document; "Document" and the number for one without a button.
std::string TitleOf(int number);

// The three texts that a numbered document has, by the place of their option.
enum DocumentText : int { kDisclaimerText, kCommentsText, kPolicyText };

// The numbers of all documents that are printed together run from 0 to this one.
inline constexpr int kLastDocument = 46;

}  // namespace tarnwell::workarea
