// The wait that the splash screen is seen for.

#pragma once

#include "forms/services.h"

namespace tarnwell::shell {

// Waits until the clock's seconds have moved on by 2; input is handled meanwhile.
void Pause2(forms::Clock& clock, forms::EventLoop& loop);

}  // namespace tarnwell::shell
