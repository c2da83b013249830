// A form without anything on it, at a machine without a screen.

#pragma once

#include "forms/form.h"
#include "forms/navigator.h"
#include "idle_services.h"

namespace tarnwell::bench {

class IdleForm {
 public:
  explicit IdleForm(storage::ProgramFolder& folder)
      : context_{{folder, clock_, dialogs_, loop_, window_, help_, clipboard_, pages_, folders_,
                  speller_, thesaurus_},
                 variables_,
                 navigator_} {
    navigator_.SetContext(context_);
    navigator_.Register("Blank", [](forms::Context& context) {
      return std::make_unique<forms::Form>(context, "Blank", "Blank");
    });
    navigator_.Show("Blank");
  }
  forms::Form& form() { return *navigator_.top(); }

 private:
  IdleClock clock_;
  YesDialogs dialogs_;
  IdleLoop loop_;
  IdleWindow window_;
  IdleHelp help_;
  IdleClipboard clipboard_;
  IdlePages pages_;
  IdleFolders folders_;
  IdleSpeller speller_;
  IdleThesaurus thesaurus_;
  forms::ProgramVariables variables_;
  forms::Navigator navigator_;
  forms::Context context_;
};

}  // namespace tarnwell::bench
