#include "parts/help_menu.h"

#include "forms/form_names.h"
#include "forms/navigator.h"

namespace tarnwell::parts {

void AddHelpMenu(forms::Form& form, forms::Context& context,
                 std::initializer_list<HelpTopic> topics) {
  forms::MenuItem& menu = form.menus().AddSubmenu("mH", "&Help");
  const auto add = [&](std::string_view caption, int page) {
    menu.AddEntry("mHI", caption, [&context, page] { context.help.Show(page); });
  };
  add("&Program Overview", kProgramOverview);
  for (const HelpTopic& topic : topics) add(topic.caption, topic.context);
  menu.AddSeparator();
  menu.AddEntry("mHAbout", "&About Tarnwell",
                [&context] { context.navigator.ShowModal(forms::form_names::kAbout1); });
}

}  // namespace tarnwell::parts
