#pragma once

#include "forms/services.h"

namespace tarnwell::desktop {

class QtEventLoop : public forms::EventLoop {
 public:
  void Yield() override;
  void WaitALittle() override;
  void RunUntil(const std::function<bool()>& done) override;
};

}  // namespace tarnwell::desktop
