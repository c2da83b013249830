#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "desktop/services/qt_volumes.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

TEST(VolumesTest, AFolderIsKnownByWhateverWayLeadsToIt) {
  const testing::TemporaryFolder own;
  const testing::TemporaryFolder other;
  std::filesystem::create_directory(own.path() + "/below");
  ASSERT_EQ(::symlink((own.path() + "/below").c_str(), (other.path() + "/link").c_str()), 0);
  QtVolumes volumes;
  struct Case {
    std::string path;
    bool lies_in;
  };
  for (const auto& [path, lies_in] : {Case{own.path(), true},
                                      {own.path() + "/", true},
                                      {own.path() + "/below", true},
                                      {own.path() + "/below/../below", true},
                                      {other.path() + "/link", true},
                                      {other.path() + "/gone", true},  // can't be told
                                      {other.path(), false},
                                      {"/", false}}) {
    EXPECT_EQ(volumes.LiesIn(path, own.path()), lies_in) << path;
  }
  EXPECT_TRUE(QtVolumes(false).LiesIn(other.path(), own.path())) << "lent no disks";
}

TEST(VolumesTest, TellsWhatADiskHasLeftAndWhereItIs) {
  const testing::TemporaryFolder folder;
  QtVolumes volumes;
  EXPECT_TRUE(volumes.FreeBytes(folder.path()).has_value());
  EXPECT_FALSE(volumes.FreeBytes(folder.path() + "/gone").has_value());
  const std::string mount = volumes.MountOf(folder.path());
  EXPECT_FALSE(mount.empty());
  EXPECT_TRUE(folder.path().starts_with(mount)) << mount;
}

}  // namespace
}  // namespace tarnwell::desktop
