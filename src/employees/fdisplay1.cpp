#include "employees/fdisplay1.h"

#include "employees/employee_book.h"
#include "forms/form_names.h"

namespace tarnwell::employees {
namespace {

using record_book::CellUse;
using record_book::DisplayOption;

constexpr int kTelephone = 7;

constexpr DisplayOption kOptions[] = {
    {.caption = "Address", .entry = 2, .is_address = true},
    {"Telephone", kTelephone, CellUse::kDial},
    {.caption = "Anniversary", .entry = 9, .is_date = true},
    {.caption = "Birthdate", .entry = 8, .is_date = true},
    {"Email Address", 10, CellUse::kWriteMail},
    {"Other", 15},
    {"Job Title", 12},
    {"Company Position", 11},
    {.caption = "Date Ended", .entry = 14, .is_date = true},
    {.caption = "Date Of Hiring", .entry = 13, .is_date = true},
};

}  // namespace

FDisplay1::FDisplay1(forms::Context& context)
    : DisplayScreen(context, {.form_name = forms::form_names::kEmployeeDisplay,
                              .caption = "Employee Data - Employee Data Display",
                              .book = {EmployeeBook(), kOptions, kTelephone, true},
                              .grid_name = "Employees",
                              .report_caption = "&Print All Data",
                              .report_title = "Complete Employee Data Report",
                              .list_date = "Long Date",
                              .pictures_form = forms::form_names::kEmployeePictures,
                              .heading_grid = true,
                              .panel_color = settings::PanelColor::kEmployeeDisplay,
                              .font = settings::PrinterFont::kEmployeeDisplay,
                              .help = 3031}) {}

}  // namespace tarnwell::employees
