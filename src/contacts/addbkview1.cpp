#include "contacts/addbkview1.h"

#include "contacts/contact_book.h"
#include "forms/form_names.h"
#include "parts/backup_menu.h"

namespace tarnwell::contacts {
namespace {

constexpr int kHelp = 3020;

constexpr record_book::EntryField kFields[] = {
    {"Business Name:", 45},
    {"First Name:", 20},
    {"Address:", 35},
    {"", 35},
    {"City:", 35},
    {"State:", 35},
    {"Zip:", 10},
    {"Phone:", 30},
    {"Mobile:", 30},
    {"Fax:", 30},
    {"Home:", 40},
    {"Business:", 40},
    {"Web Page:", 40},
    {"Contact Name:", 40},
    {"Job Title:", 40},
    {"Address:", 35},
    {"", 35},
    {"City:", 35},
    {"State:", 35},
    {"Zip:", 10},
    {"Business Phone:", 30},
    {"Mobile:", 30},
    {"Business Fax:", 30},
    {"Comments:", 230},
};
static_assert(std::size(kFields) == kContactEntries);

constexpr record_book::EntryGroup kGroups[] = {{"Company Information", 0},
                                               {"Email Address & Web Page", 10},
                                               {"Contact Individual Information", 13}};
constexpr int kTelephones[] = {7, 8, 20, 21};
constexpr int kEmails[] = {10, 11};
// The second head stands above "Web Page:", as sheets in use have it.
constexpr record_book::WorksheetHead kWorksheetHeads[] = {{"Company Information", 0},
                                                          {"Contact Individual Information", 11}};

record_book::EntryStyle Style() {
  return {
      .form_name = forms::form_names::kContactEntry,
      .book = &ContactBook(),
      .entry_caption = "Tools and Program Informaiton - Business Contacts Data Entry Screen",
      .view_caption = "Tools and Program Informaiton - Business Contacts Data View Screen",
      .fields = kFields,
      .has_comments = true,
      .groups = kGroups,
      .name_missing = "Business Name must be entered to save file!",
      .changed_name_missing = "Business Name must be entered to save file!",
      .click_modifies = true,
      .telephones = kTelephones,
      .emails = kEmails,
      .worksheet = "Business Contacts",
      .worksheet_heads = kWorksheetHeads,
      .label_not_on_worksheet = 1,
      .print_caption = "&Print File",
      .picture = {},
      .panel_color = settings::PanelColor::kContacts,
      .has_text_color = false,
      .help = kHelp,
      .backup_set = parts::kContactsSet,
      .backup = "&Backup Address Book Files to Disk",
      .restore = "&Restore Address Book Files from Disk",
  };
}

}  // namespace

ADDBKVIEW1::ADDBKVIEW1(forms::Context& context) : EntryScreen(context, Style()) {}

}  // namespace tarnwell::contacts
