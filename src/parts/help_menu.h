#pragma once

#include <initializer_list>
#include <string_view>

#include "forms/form.h"

namespace tarnwell::parts {

// One help topic of a screen.
struct HelpTopic {
  std::string_view caption;
  int context;
};

inline constexpr int kProgramOverview = 1000;

// The "&Help" menu that every main screen has: the overview, the screen's own topics, the about
// box.
void AddHelpMenu(forms::Form& form, forms::Context& context,
                 std::initializer_list<HelpTopic> topics = {});

}  // namespace tarnwell::parts
