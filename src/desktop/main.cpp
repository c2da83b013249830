#include "desktop/application.h"
#include "desktop/services/desktop_tones.h"

int main(int argc, char* argv[]) {
  tarnwell::desktop::QuietQt();
  QApplication application(argc, argv);
  tarnwell::desktop::Prepare(application, tarnwell::desktop::TonesOfDesktop());
  return tarnwell::desktop::RunIn(tarnwell::desktop::ChooseFolders());
}
