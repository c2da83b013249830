#pragma once

#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"

namespace tarnwell::shell {

class About1 : public forms::Form {
 public:
  explicit About1(forms::Context& context);

  forms::Picture logo;
  forms::Label product;
  forms::Label version;
  forms::Label maker;
  forms::Command close;
};

}  // namespace tarnwell::shell
