#include "reference/toolsandinfo1.h"

#include "forms/form_names.h"
#include "forms/help_menu.h"
#include "forms/navigator.h"

namespace tarnwell::reference {
namespace {

constexpr int kScreenHelp = 3014;

}  // namespace

ToolsandInfo1::ToolsandInfo1(forms::Context& context)
    : MainScreen(context, forms::form_names::kToolsandInfo1, "Tools and Program Information",
                 forms::kToolsAndProgramInformation,
                 {"&Comapny Data", "&Employee Data", "&Information Advisor", "&Exit Program"}) {
  planner.on_click = [this] {
    const forms::Hourglass hourglass(context_.window);
    context_.navigator.Show(forms::form_names::kZcalandar1);
  };
  SetHelpContext(kScreenHelp);
  forms::AddHelpMenu(*this, context_, {{"&Tools and Program Information", kScreenHelp}});
}

}  // namespace tarnwell::reference
