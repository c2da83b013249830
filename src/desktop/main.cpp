#include "desktop/application.h"

int main(int argc, char* argv[]) {
  tarnwell::desktop::QuietQt();
  QApplication application(argc, argv);
  tarnwell::desktop::Prepare(application);
  return tarnwell::desktop::RunIn(tarnwell::desktop::ChooseFolders());
}
