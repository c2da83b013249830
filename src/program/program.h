// The one place that knows every form.

#pragma once

#include "forms/context.h"
#include "forms/navigator.h"
#include "storage/program_folder.h"

namespace tarnwell::program {

// What the world lends to a run of the program.
struct Services {
  storage::ProgramFolder& folder;
  forms::Clock& clock;
  forms::Dialogs& dialogs;
  forms::EventLoop& loop;
  forms::Window& window;
  forms::HelpViewer& help;
  forms::Clipboard& clipboard;
  forms::Pages& pages;
  forms::FolderBrowser& folders;
  forms::Speller& speller;
  forms::Thesaurus& thesaurus;
};

class Program {
 public:
  explicit Program(const Services& services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Sweeps what an interrupted save left and shows the start screen.
  void Start();

  forms::Navigator& navigator() { return navigator_; }
  forms::ProgramVariables& variables() { return variables_; }

 private:
  forms::Navigator navigator_;
  forms::ProgramVariables variables_;
  forms::Context context_;
};

}  // namespace tarnwell::program
