// What a screen reader says of a control beside its name.

#pragma once

#include <string>

#include "forms/control.h"
#include "forms/grid.h"

namespace tarnwell::forms {

// The tool tip, and what a person who doesn't see the control has to know of it: the keys that work
// it, how much can be typed, how to get out. Empty for what is only read.
std::string DescriptionOf(const Control& control);

// A cell with what stands at the head of its row and column: "Rent, January: 1,200.00".
std::string SpokenCell(const Grid& grid, int row, int column);

}  // namespace tarnwell::forms
