#pragma once

#include "forms/form.h"
#include "forms/label.h"

namespace tarnwell::shell {

// Shown for about four seconds at the start of a run.
class Splash1 : public forms::Form {
 public:
  explicit Splash1(forms::Context& context);

  forms::Picture logo;
  forms::Label product;
  forms::Label version;
  forms::Label maker;

  void Activate() override;
};

}  // namespace tarnwell::shell
