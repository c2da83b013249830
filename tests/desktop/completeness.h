// What a view may lack, found by looking at it.

#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "forms/form.h"

namespace tarnwell::testing {

// Controls of the form for which no widget (or timer) of their name lies in `page`, and those that
// have two.
std::vector<std::string> PlacingFaults(forms::Form& form, QWidget& page);
// What a screen reader can't name, describe, tell the kind of or press, asked through the interface
// that it uses.
std::vector<std::string> NamingFaults(forms::Form& form, QWidget& page);
// Mnemonics that two visible commands or choices of one panel share.
std::vector<std::string> MnemonicFaults(forms::Form& form);
// What a person sees in `page` as it is now: texts that their widget or what is around them cuts,
// widgets that stick out of what is around them or lie over each other. What a scroll bar brings
// into view counts as seen.
std::vector<std::string> CutOffFaults(QWidget& page);
// Scroll bars of the page as a whole: it would need more room than it has.
std::vector<std::string> ScrollFaults(QWidget& page);

// All but the scroll bars.
std::vector<std::string> AllFaults(forms::Form& form, QWidget& page);

std::string Text(QSize size);

}  // namespace tarnwell::testing
