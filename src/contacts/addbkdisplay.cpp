#include "contacts/addbkdisplay.h"

#include "contacts/contact_book.h"
#include "forms/form_names.h"

namespace tarnwell::contacts {
namespace {

using record_book::CellUse;
using record_book::DisplayOption;

constexpr int kTelephone = 7;

// "Job Title" and "Company" show what the entry screen calls "Contact Name:" and "Job Title:".
constexpr DisplayOption kOptions[] = {
    {.caption = "Address", .entry = 2, .is_address = true},
    {"Telephone", kTelephone, CellUse::kDial},
    {"Mobile", 8, CellUse::kDial},
    {"Fax", 9},
    {"Home Email", 10, CellUse::kWriteMail},
    {"Business Email", 11, CellUse::kWriteMail},
    {"Web Page", 12, CellUse::kOpenWeb},
    {"Job Title", 13},
    {"Company", 14},
    {.caption = "Company Address", .entry = 15, .is_address = true},
    {"Bus. Phone", 20, CellUse::kDialBusiness, "Business Phone"},
    {"Bus. Mobile", 21, CellUse::kDialBusiness, "Business Mobile"},
    {"Bus. Fax", 22, CellUse::kNone, "Business Fax"},
};

}  // namespace

ADDBKDISPLAY::ADDBKDISPLAY(forms::Context& context)
    : DisplayScreen(context,
                    {.form_name = forms::form_names::kContactDisplay,
                     .caption = "Tools and Program Information - Business Contacts Display",
                     .book = {ContactBook(), kOptions, kTelephone, false},
                     .grid_name = "Business contacts",
                     .report_caption = "&Complete Report",
                     .report_title = "Complete Business Contacts Report",
                     .list_date = "mmmm dd, yyyy",
                     .pictures_form = forms::form_names::kContactPictures,
                     .panel_color = settings::PanelColor::kContactDisplay,
                     .help = 3021}) {}

}  // namespace tarnwell::contacts
