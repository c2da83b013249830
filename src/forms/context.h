#pragma once

#include "forms/dialogs.h"
#include "forms/folder_browser.h"
#include "forms/pages.h"
#include "forms/program_variables.h"
#include "forms/services.h"
#include "storage/program_folder.h"

namespace tarnwell::forms {

class Navigator;

// Everything that a form works with besides its own controls.
struct Context {
  storage::ProgramFolder& folder;
  Clock& clock;
  Dialogs& dialogs;
  EventLoop& loop;
  Window& window;
  HelpViewer& help;
  Clipboard& clipboard;
  Pages& pages;
  FolderBrowser& folders;
  Speller& speller;
  Thesaurus& thesaurus;
  ProgramVariables& variables;
  Navigator& navigator;
};

}  // namespace tarnwell::forms
