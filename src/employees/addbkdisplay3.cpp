#include "employees/addbkdisplay3.h"

#include "employees/employee_book.h"
#include "forms/form_names.h"

namespace tarnwell::employees {
namespace {

constexpr record_book::CellLine kLines[] = {
    {.caption = "Address", .entry = 2, .two_lines = true},
    {.caption = "City, St, Zip", .entry = 4, .is_city = true},
    {"Telephone Number", 7},
    {"Birthdate", 8},
    {"Anniversary", 9},
    {"Email Address", 10},
};

constexpr record_book::CellPlaces kPlaces{.picture_tops = {0.85, 3.35, 5.85, 8.35},
                                          .picture_lefts = {0.1, 4.15},
                                          .text_tops = {1.4, 3.9, 6.4, 8.9},
                                          .text_middles = {3.25, 7.32}};
constexpr int kBirthday = 8;

}  // namespace

ADDBKDISPLAY3::ADDBKDISPLAY3(forms::Context& context)
    : PicturePages(context, {.form_name = forms::form_names::kEmployeePictures,
                             .caption = "Employee Data - Employee Pictures Display",
                             .book = {EmployeeBook(), kLines, kBirthday, kPlaces},
                             .list = " Employee... ",
                             // The head says so of employees too.
                             .head = "Address Book Pictures - Page No. ",
                             .with_pictures = "Only People w/Pictures",
                             .help = 3022}) {}

}  // namespace tarnwell::employees
