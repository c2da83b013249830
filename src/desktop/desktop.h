// A run of the program in its window: all services, the window and the forms, put together.

#pragma once

#include <QTimer>

#include "desktop/main_window.h"
#include "desktop/services/folders.h"
#include "desktop/services/html_help_viewer.h"
#include "desktop/services/hunspell_speller.h"
#include "desktop/services/message_dialogs.h"
#include "desktop/services/mythes_thesaurus.h"
#include "desktop/services/qt_clipboard.h"
#include "desktop/services/qt_event_loop.h"
#include "desktop/services/qt_folder_browser.h"
#include "desktop/services/qt_launcher.h"
#include "desktop/services/qt_modem.h"
#include "desktop/services/qt_pages.h"
#include "desktop/services/qt_pictures.h"
#include "desktop/services/qt_volumes.h"
#include "desktop/services/system_clock.h"
#include "desktop/widgets/pictures.h"
#include "program/program.h"
#include "storage/program_folder.h"

namespace tarnwell::desktop {

// What lies outside the machine's own files: a tool that presses anything at random lends none.
struct Outside {
  QtModem::Ports ports = QtModem::PortsOfMachine;
  QtLauncher::Opener open = QtLauncher::OpenWithSystem;
  bool disks = true;  // that backups may be made on

  static Outside None() {
    return {[] { return QStringList(); }, [](const QUrl&) { return false; }, false};
  }
};

class Desktop {
 public:
  explicit Desktop(const Folders& folders, const Outside& outside = {});

  // Shows the splash and the start screen. The program may have ended when it comes back.
  void Start();

  MainWindow& window() { return window_; }
  forms::Navigator& navigator() { return program_.navigator(); }
  program::Program& program() { return program_; }
  bool ended() { return navigator().ended(); }

 private:
  storage::ProgramFolder folder_;
  SystemClock clock_;
  MessageDialogs dialogs_;
  QtEventLoop loop_;
  HtmlHelpViewer help_;
  PictureStore picture_store_;
  QtClipboard clipboard_;
  QtPages pages_;
  QtFolderBrowser folders_;
  QtPictures pictures_;
  HunspellSpeller speller_;
  MythesThesaurus thesaurus_;
  QtModem modem_;
  QtLauncher launcher_;
  QtVolumes volumes_;
  MainWindow window_;
  program::Program program_;  // goes before all above: its forms need them
  QTimer keeping_;            // of what is typed and not saved
};

}  // namespace tarnwell::desktop
