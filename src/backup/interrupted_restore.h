#pragma once

#include "forms/context.h"

namespace tarnwell::backup {

// For the start of the program, before any form reads a file: finishes or undoes a restore that was
// interrupted, and says which. False when neither can be done, and nothing may be written.
bool SettleInterruptedRestore(forms::Context& context);

}  // namespace tarnwell::backup
