// The least that a Qt program can do: an empty main window.

#include <QApplication>
#include <QMainWindow>

#include "first_paint.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const tarnwell::bench::FirstPaint first_paint;
  QMainWindow window;
  window.resize(1007, 747);
  window.show();
  return QApplication::exec();
}
