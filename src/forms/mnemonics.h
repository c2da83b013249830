// Which control a person means who presses Alt and a letter.

#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace tarnwell::forms {

// The caption that can hold a mnemonic: of a command, an option or a check box; empty for others.
std::string CaptionOf(const Control& control);

// The letter or digit behind the "&" of a caption, in small letters; 0 for none.
char MnemonicOf(std::string_view caption);

// The control that `key` (in small letters) chooses, or nullptr. Where several have the letter, the
// one nearest to the focus is meant: inside out from the panel that has it. Without a focus it is
// the innermost one, as a panel on show lies inside the screen. Of equals it is the first, or the
// next after the one that has the focus, so that each press brings another.
Control* MnemonicTarget(const Form& form, char key);

}  // namespace tarnwell::forms
