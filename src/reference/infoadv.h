#pragma once

#include "forms/label.h"
#include "parts/main_buttons.h"

namespace tarnwell::reference {

// The screen "Information Advisor".
class InfoAdv : public parts::MainScreen {
 public:
  explicit InfoAdv(forms::Context& context);

  forms::Label title{*this, "Label1", "Information Advisor", forms::LabelRole::kTitle};
};

}  // namespace tarnwell::reference
