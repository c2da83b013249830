// What stands around a form without a program, and one empty form to hang controls and panels on.

#pragma once

#include "forms/form.h"
#include "forms/navigator.h"
#include "storage/file_system.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

// What a form needs around it, all of it faked.
struct FormWorld : FakeWorld {
  FormWorld() { navigator.SetContext(context); }

  TemporaryFolder temporary;
  storage::ProgramFolder folder{storage::RealFileSystem(), temporary.path()};
  forms::ProgramVariables variables;
  forms::Navigator navigator;
  forms::Context context{Lend(folder), variables, navigator};
};

class FormRig : public FormWorld {
 public:
  forms::Form& form = ShowBlank();

 private:
  forms::Form& ShowBlank() {
    navigator.Register("Blank", [](forms::Context& lent) {
      return std::make_unique<forms::Form>(lent, "Blank", "Blank");
    });
    navigator.Show("Blank");
    return *navigator.top();
  }
};

}  // namespace tarnwell::testing
