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
// Widgets that a screen reader could only call by their kind.
std::vector<std::string> NamingFaults(forms::Form& form, QWidget& page);
// Mnemonics that two visible commands or choices of one panel share.
std::vector<std::string> MnemonicFaults(forms::Form& form);
// Visible texts that are larger than their place, and widgets that stick out of what is around
// them.
std::vector<std::string> CutOffFaults(QWidget& page);

std::vector<std::string> AllFaults(forms::Form& form, QWidget& page);

}  // namespace tarnwell::testing
