#pragma once

#include <initializer_list>
#include <string_view>

#include "forms/form.h"

namespace tarnwell::forms {

// One help topic of a screen.
struct HelpTopic {
  std::string_view caption;
  int context;
};

inline constexpr int kProgramOverview = 1000;
inline constexpr int kPrintHelp = 1014;

// The "&Help" menu that every main screen has: the overview, the screen's own topics, the about
// box.
void AddHelpMenu(Form& form, Context& context, std::initializer_list<HelpTopic> topics = {});

}  // namespace tarnwell::forms
