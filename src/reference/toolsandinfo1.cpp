#include "reference/toolsandinfo1.h"

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"

namespace tarnwell::reference {
namespace {

constexpr int kScreenHelp = 3014;

}  // namespace

ToolsandInfo1::ToolsandInfo1(forms::Context& context)
    : MainScreen(context, forms::form_names::kToolsandInfo1, "Tools and Program Information",
                 parts::kToolsAndProgramInformation,
                 {"&Comapny Data", "&Employee Data", "&Information Advisor", "&Exit Program"}) {
  const auto show = [this](const char* form) {
    const forms::Hourglass hourglass(context_.window);
    context_.navigator.Show(form);
  };
  contacts.on_click = [show] { show(forms::form_names::kContactEntry); };
  contact_display.on_click = [show] { show(forms::form_names::kContactDisplay); };
  planner.on_click = [show] { show(forms::form_names::kZcalandar1); };
  calendar.on_click = [show] { show(forms::form_names::kCalendar); };
  parts::AddBackupEntries(menus().AddSubmenu("mU", "&Utilities"), context_,
                          {.set = parts::kDocumentsSet});
  SetHelpContext(kScreenHelp);
  parts::AddHelpMenu(*this, context_, {{"&Tools and Program Information", kScreenHelp}});
}

}  // namespace tarnwell::reference
