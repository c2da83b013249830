#include "desktop/application.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwell::desktop::Prepare(application);
  return tarnwell::desktop::RunIn(tarnwell::desktop::ChooseFolders());
}
