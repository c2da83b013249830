#pragma once

#include "forms/services.h"

namespace tarnwell::desktop {

class SystemClock : public forms::Clock {
 public:
  text::Moment Now() override;
};

}  // namespace tarnwell::desktop
