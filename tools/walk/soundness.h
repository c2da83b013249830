// What holds of the window at every moment between two gestures.

#pragma once

#include <string>
#include <vector>

#include "desktop/main_window.h"
#include "forms/navigator.h"

namespace tarnwell::testing {

// How the window differs from the navigator's stack, in words: a form without a page, another page,
// title, status or menu bar than the top form's, the keys in a widget that can't be used, a closed
// window. Empty when it is sound; a program that has ended has no window.
std::vector<std::string> StackFaults(desktop::MainWindow& window, forms::Navigator& navigator);

}  // namespace tarnwell::testing
