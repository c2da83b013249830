// A whole program without a window, in a folder of its own.

#pragma once

#include <memory>
#include <string_view>

#include "program/program.h"
#include "storage/file_system.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

class ProgramRig : public FakeWorld {
 public:
  explicit ProgramRig(storage::FileSystem& files = storage::RealFileSystem())
      : folder(files, temporary.path()) {}

  // A new run of the program on the same folder.
  void Start() {
    program = std::make_unique<program::Program>(Lend(folder));
    program->Start();
  }

  forms::Navigator& navigator() { return program->navigator(); }
  std::string top() { return navigator().top() ? navigator().top()->name() : ""; }

  // The loaded form of that name and class; a failed cast throws and ends the test.
  template <typename FormClass>
  FormClass& Get(std::string_view name) {
    forms::Form* form = navigator().Find(name);
    if (!form) throw std::runtime_error("not loaded: " + std::string(name));
    return dynamic_cast<FormClass&>(*form);
  }

  // Presses the menu entry of the form on top.
  void ClickMenu(std::string_view name) {
    forms::MenuItem* item = navigator().top()->menus().Find(name);
    ASSERT_NE(item, nullptr) << name;
    item->Click();
  }

  TemporaryFolder temporary;
  storage::ProgramFolder folder;
  std::unique_ptr<program::Program> program;
};

}  // namespace tarnwell::testing
