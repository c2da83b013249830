// Where the program finds the user's files and its own.

#pragma once

#include <QString>

namespace tarnwell::desktop {

struct Folders {
  QString user;      // read and written
  QString supplied;  // read only; empty when there is none
  bool portable = false;
};

// The user's folder is the executable's own one when it can be written and carries data (portable
// use): a file named "portable", or "HINV3.Fil" in any capitals, which every start of the program
// reads or makes. Otherwise it is `per_user`, which is made if it is missing.
//
// The supplied files are those installed in "../share/tarnwell" beside the executable's folder,
// otherwise the nearest folder "data" with the program's logo in the executable's folder or up to
// four above it, as in a portable copy or a source tree that was built.
Folders ChooseFolders(const QString& executable_folder, const QString& per_user);

// In portable use Qt's own dialogues keep what they remember, such as colours of the user's, in the
// user's folder too: nothing stays behind on the machine.
void KeepTogether(const Folders& folders);

// For this program, on this machine.
Folders ChooseFolders();

}  // namespace tarnwell::desktop
