#pragma once

#include "forms/dialogs.h"
#include "forms/folder_browser.h"
#include "forms/launcher.h"
#include "forms/modem.h"
#include "forms/pages.h"
#include "forms/pictures.h"
#include "forms/program_variables.h"
#include "forms/services.h"
#include "forms/volumes.h"
#include "storage/program_folder.h"

namespace tarnwell::forms {

class Navigator;

// What the world lends to a run of the program. A new service is named here, in the desktop, which
// has the real one, and among the tests' fakes.
struct Services {
  storage::ProgramFolder& folder;
  Clock& clock;
  Dialogs& dialogs;
  EventLoop& loop;
  Window& window;
  HelpViewer& help;
  Clipboard& clipboard;
  Pages& pages;
  FolderBrowser& folders;
  Pictures& pictures;
  Speller& speller;
  Thesaurus& thesaurus;
  Modem& modem;
  Launcher& launcher;
  Volumes& volumes;
};

// Everything that a form works with besides its own controls.
struct Context : Services {
  ProgramVariables& variables;
  Navigator& navigator;
};

}  // namespace tarnwell::forms
