// The one place that knows every form.

#pragma once

#include "forms/context.h"
#include "forms/navigator.h"

namespace tarnwell::program {

class Program {
 public:
  explicit Program(const forms::Services& services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Sweeps what an interrupted save left, settles an interrupted restore and shows the start
  // screen.
  void Start();

  forms::Navigator& navigator() { return navigator_; }
  forms::ProgramVariables& variables() { return variables_; }

 private:
  forms::Navigator navigator_;
  forms::ProgramVariables variables_;
  forms::Context context_;
};

}  // namespace tarnwell::program
