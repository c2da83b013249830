#include "reference/infoadv.h"

#include "forms/form_names.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"

namespace tarnwell::reference {
namespace {

constexpr int kScreenHelp = 3066;

}  // namespace

InfoAdv::InfoAdv(forms::Context& context)
    : MainScreen(
          context, forms::form_names::kInfoAdv, "Information Advisor", parts::kInformationAdvisor,
          {"&Company Data", "&Employee Data", "&Tools and Program Information", "&Exit Program"}) {
  parts::AddBackupEntries(menus().AddSubmenu("mU", "&Utilities"), context_,
                          {.set = parts::kDocumentsSet});
  SetHelpContext(kScreenHelp);
  parts::AddHelpMenu(*this, context_, {{"&Information Advisor", kScreenHelp}});
}

}  // namespace tarnwell::reference
