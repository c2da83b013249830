// One empty form without a program around it, to hang controls and panels on.

#pragma once

#include "forms/form.h"
#include "forms/navigator.h"
#include "storage/file_system.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

class FormRig : public FakeWorld {
 public:
  TemporaryFolder temporary;
  storage::ProgramFolder folder{storage::RealFileSystem(), temporary.path()};
  forms::ProgramVariables variables;
  forms::Navigator navigator;
  forms::Context context{folder, clock,   dialogs, loop,      window,    help,     clipboard,
                         pages,  folders, speller, thesaurus, variables, navigator};
  forms::Form& form = ShowBlank();

 private:
  forms::Form& ShowBlank() {
    navigator.SetContext(context);
    navigator.Register("Blank", [](forms::Context& lent) {
      return std::make_unique<forms::Form>(lent, "Blank", "Blank");
    });
    navigator.Show("Blank");
    return *navigator.top();
  }
};

}  // namespace tarnwell::testing
