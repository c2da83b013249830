// The one place that knows every form.

#pragma once

#include "forms/context.h"
#include "forms/navigator.h"
#include "program/drafts.h"

namespace tarnwell::program {

class Program {
 public:
  explicit Program(const forms::Services& services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // What was kept of unsaved changes goes, if the program has ended.
  ~Program();

  // Sweeps what an interrupted save left, settles an interrupted restore, shows the start screen,
  // and offers what was typed and not saved when the program was killed.
  void Start();

  // Keeps what is typed and not saved. To be called every Drafts::kEvery, and when the machine is
  // about to go down.
  void KeepDrafts() { drafts_.Keep(); }

  forms::Navigator& navigator() { return navigator_; }
  forms::ProgramVariables& variables() { return variables_; }

 private:
  forms::Navigator navigator_;
  forms::ProgramVariables variables_;
  forms::Context context_;
  Drafts drafts_{context_};
};

}  // namespace tarnwell::program
