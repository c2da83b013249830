// Small routines that every area may call.

#pragma once

#include "forms/services.h"

namespace tarnwell::shell {

// Wait until the clock's seconds have moved on by 1 or 2; input is handled meanwhile.
void Pause1(forms::Clock& clock, forms::EventLoop& loop);
void Pause2(forms::Clock& clock, forms::EventLoop& loop);

}  // namespace tarnwell::shell
