// The tests of the windows run without a display, on a screen of the least size allowed, with fonts
// that are the same everywhere.

#include <gtest/gtest.h>

#include "desktop/application.h"
#include "support/fixed_surroundings.h"
#include "support/temporary_folder.h"

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  const tarnwell::testing::TemporaryFolder home;
  tarnwell::testing::FixSurroundings(home.path());
  // Of a test that has to begin before Qt does.
  if (qEnvironmentVariableIsSet("TARNWELL_TEST_SCALE")) {
    qputenv("QT_SCALE_FACTOR", qgetenv("TARNWELL_TEST_SCALE"));
  }
  // The plain "offscreen" has a screen that the program refuses as too small.
  const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
  if (platform.isEmpty() || platform == QLatin1String("offscreen")) {
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" TARNWELL_TEST_DATA "/desktop/screen-1024x768.json");
  }
  QApplication application(argc, argv);
  tarnwell::desktop::Prepare(application);
  return RUN_ALL_TESTS();
}
