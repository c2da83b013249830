#include "employees/fview.h"

#include "employees/employee_book.h"
#include "forms/form_names.h"
#include "parts/backup_menu.h"

namespace tarnwell::employees {
namespace {

constexpr int kHelp = 3030;

constexpr record_book::EntryField kFields[] = {
    {"Last Name:", 20}, {"First Name:", 20},     {"Address:", 30},    {"", 30},
    {"City:", 25},      {"State:", 20},          {"Zip Code:", 10},   {"Telephone:", 20},
    {"Birthdate:", 20}, {"Anniversary:", 20},    {"Email:", 20},      {"Company Position:", 30},
    {"Job Title:", 30}, {"Date of Hiring:", 30}, {"Date Ended:", 30}, {"Other:", 30},
    {"Comments:", 130},
};
static_assert(std::size(kFields) == kEmployeeEntries);

constexpr const char* kGeneral = "Employee General Information";
constexpr const char* kDates = "Special Dates/Email Address";
constexpr const char* kEmployment = "Employee Employment Information and Data";
constexpr record_book::EntryGroup kGroups[] = {{kGeneral, 0}, {kDates, 8}, {kEmployment, 11}};
constexpr record_book::WorksheetHead kWorksheetHeads[] = {
    {kGeneral, 0}, {kDates, 7}, {kEmployment, 10}};
constexpr int kTelephones[] = {7};
constexpr int kEmails[] = {10};

record_book::EntryStyle Style() {
  return {
      .form_name = forms::form_names::kEmployeeEntry,
      .book = &EmployeeBook(),
      .entry_caption = "Employee Data - Employee Data Entry Screen",
      .view_caption = "Employee Data - Employee Data View Screen",
      .fields = kFields,
      .has_comments = true,
      .groups = kGroups,
      .name_missing = "Last Name must be entered to save file!",
      .changed_name_missing = "Last Name must be entered to save file!",
      .click_modifies = true,
      .telephones = kTelephones,
      .emails = kEmails,
      .worksheet = "Employee",
      .worksheet_heads = kWorksheetHeads,
      .label_not_on_worksheet = -1,
      .print_caption = "&Print File",
      .picture = {},
      .panel_color = settings::PanelColor::kEmployees,
      .has_text_color = false,
      .help = kHelp,
      .backup_set = parts::kEmployeesSet,
      .backup = "&Backup Employee Information Files to Disk",
      .restore = "&Restore Employee InformationFiles from Disk",
  };
}

}  // namespace

FView::FView(forms::Context& context) : EntryScreen(context, Style()) {}

}  // namespace tarnwell::employees
