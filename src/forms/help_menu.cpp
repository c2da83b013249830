#include "forms/help_menu.h"

#include "forms/form_names.h"
#include "forms/navigator.h"

namespace tarnwell::forms {

void AddHelpMenu(Form& form, Context& context, std::initializer_list<HelpTopic> topics) {
  MenuItem& menu = form.menus().AddSubmenu("mH", "&Help");
  const auto add = [&](std::string_view caption, int page) {
    menu.AddEntry("mHI", caption, [&context, page] { context.help.Show(page); });
  };
  add("&Program Overview", kProgramOverview);
  for (const HelpTopic& topic : topics) add(topic.caption, topic.context);
  menu.AddSeparator();
  menu.AddEntry("mHAbout", "&About Tarnwell",
                [&context] { context.navigator.ShowModal(form_names::kAbout1); });
}

}  // namespace tarnwell::forms
