// The process: what is set up once, and a run of the program from its start to its end.

#pragma once

#include <QApplication>

#include "desktop/services/folders.h"
#include "desktop/widgets/tones.h"

namespace tarnwell::desktop {

// Before the application is made: Qt then keeps to itself that the machine has no run-time
// directory, which it would warn of at the start.
void QuietQt();

// The program's name and look. The program ends when its forms say so, not with its last window:
// between two forms none may be open.
void Prepare(QApplication& application, ToneSet tones = ToneSet::kLight);

// Runs the program on these folders, or raises the window of the run that has them already. The
// result is the exit code of the process.
int RunIn(const Folders& folders);

}  // namespace tarnwell::desktop
