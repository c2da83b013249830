#include "workarea/workarea1.h"

#include <algorithm>
#include <limits>

#include "forms/form_names.h"
#include "forms/help_menu.h"
#include "forms/navigator.h"
#include "text/date_mask.h"

namespace tarnwell::workarea {
namespace {

constexpr int kAreaHelp = 3010;

std::int16_t Twips(int length) {
  return static_cast<std::int16_t>(std::min<int>(length, std::numeric_limits<std::int16_t>::max()));
}

}  // namespace

WorkArea1::WorkArea1(forms::Context& context)
    : Form(context, forms::form_names::kWorkArea1, "Company/Employee Data Area") {
  main_buttons.on_press = [this](int index) { Press(index); };
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  const std::pair<int, const char*> entries[] = {
      {forms::kInformationAdvisor, "&Information Advisor"},
      {forms::kToolsAndProgramInformation, "&Tools and Program Information"},
      {forms::kExitProgram, "&Exit Program"},
  };
  for (const auto& [index, caption] : entries) {
    options.AddEntry("mOTab(" + std::to_string(index) + ")", caption,
                     [this, index = index] { main_buttons[index].Click(); });
  }
  SetPopupMenu(options);
  SetHelpContext(kAreaHelp);
  forms::AddHelpMenu(*this, context_, {{"&Company/Employee Data Area", kAreaHelp}});
}

void WorkArea1::Load() {
  date.SetCaption(text::FormatDate(context_.clock.Today(), "mmmm d, yyyy"));
  main_buttons.PaintSelected(forms::kCompanyData);
  ShowArea(forms::kCompanyData);
}

void WorkArea1::Activate() {
  const forms::Size size = context_.window.size();
  context_.variables.FormHeight = Twips(size.height);
  context_.variables.FormWidth = Twips(size.width);
  switch (context_.variables.MainArea) {
    case forms::kInformationAdvisor:
      return context_.navigator.Show(forms::form_names::kInfoAdv);
    case forms::kToolsAndProgramInformation:
      return context_.navigator.Show(forms::form_names::kToolsandInfo1);
    case forms::kExitProgram:
      context_.variables.MainArea = forms::kCompanyData;
      break;
    default:
      Press(context_.variables.MainArea);
  }
}

void WorkArea1::Press(int index) {
  if (index == main_buttons.selected()) return;
  if (index == forms::kExitProgram) return AskToExit();
  main_buttons.PaintSelected(index <= forms::kEmployeeData ? index : -1);
  context_.variables.MainArea = static_cast<std::int16_t>(index);
  if (index <= forms::kEmployeeData) return ShowArea(index);
  context_.navigator.Show(index == forms::kInformationAdvisor ? forms::form_names::kInfoAdv
                                                              : forms::form_names::kToolsandInfo1);
}

void WorkArea1::ShowArea(int index) {
  area_on_show_ = index;
  area_title.SetCaption(index == forms::kCompanyData ? "Company Data" : "Employee Data");
}

void WorkArea1::AskToExit() {
  context_.variables.MainArea = forms::kExitProgram;
  if (Confirmed(forms::ExitBox())) {
    context_.navigator.Unload(*this);
    return context_.navigator.EndProgram();
  }
  context_.variables.MainArea = static_cast<std::int16_t>(area_on_show_);
}

}  // namespace tarnwell::workarea
