// started_program FOLDER: the program's own start on that folder, up to its first painted window.

#include "desktop/application.h"
#include "first_paint.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const tarnwell::bench::FirstPaint first_paint;
  tarnwell::desktop::Prepare(application);
  const auto folders = tarnwell::desktop::ChooseFolders();
  return tarnwell::desktop::RunIn({QString::fromLocal8Bit(argv[1]), folders.supplied});
}
