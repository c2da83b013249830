// The tests of the windows run without a display, on a screen of the least size allowed.

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/widgets/look.h"

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" TARNWELL_TEST_DATA "/desktop/screen-1024x768.json");
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tarnwell"));
  QApplication::setQuitOnLastWindowClosed(false);
  tarnwell::desktop::ApplyLook(application);
  return RUN_ALL_TESTS();
}
