#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "walk/walker.h"

namespace tarnwell::testing {
namespace {

// A seed for each day would fail for no one's change; tarnwell-walk goes further with any seed.
TEST(Walk, AFewHundredStepsWithoutSenseLeaveTheProgramSound) {
  const TemporaryFolder user;
  Walker walker({.folders = {QString::fromStdString(user.path()),
                             QStringLiteral(TARNWELL_SOURCE_DIR "/data")},
                 .seed = 5,
                 .steps = 400,
                 .log = {}});
  const WalkReport report = walker.Walk();
  EXPECT_TRUE(report.faults.isEmpty()) << report.faults.join('\n').toStdString();
  EXPECT_EQ(report.steps, 400);
  EXPECT_GT(report.visits.size(), 2u);
}

}  // namespace
}  // namespace tarnwell::testing
