#include "storage/whole_file_save.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "storage/program_folder.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;
using ::testing::AnyOf;
using ::testing::ElementsAre;

TEST(WholeFileSaveTest, BringsTheContentToTheDiskBeforeTheNameAndTheNameBeforeItReturns) {
  TemporaryFolder disk;
  FailingFileSystem files(RealFileSystem());
  EXPECT_TRUE(SaveWhole(files, disk.path(), disk.path() + "/a.fil", "content"));
  EXPECT_THAT(files.log(), ElementsAre("open", "copy permissions", "write", "flush", "close",
                                       "rename", "flush folder"));
  EXPECT_THAT(disk.Names(), ElementsAre("a.fil"));
}

TEST(WholeFileSaveTest, AFailureAtAnyCallLeavesTheWholeOldOrTheWholeNewContent) {
  const std::string old_content(5000, 'o');
  const std::string new_content(7000, 'n');
  for (const bool from_then_on : {false, true}) {
    bool is_saved = false;
    for (int call = 1; !is_saved; ++call) {
      ASSERT_LT(call, 50) << "the save never succeeds";
      TemporaryFolder disk;
      disk.Write("a.fil", old_content);
      FailingFileSystem files(RealFileSystem());
      ProgramFolder folder(files, disk.path());
      from_then_on ? files.FailFrom(call) : files.FailAt(call);
      is_saved = folder.WriteWhole("A.fil", new_content) && files.calls() < call;
      // Where every further call fails too, there is no removing the sibling.
      EXPECT_TRUE(from_then_on || disk.Names().size() == 1) << call;
      ProgramFolder(RealFileSystem(), disk.path()).Recover();
      EXPECT_THAT(disk.Names(), ElementsAre("a.fil")) << call;
      EXPECT_THAT(disk.Read("a.fil"), AnyOf(old_content, new_content)) << call;
      EXPECT_TRUE(!is_saved || disk.Read("a.fil") == new_content);
    }
  }
}

TEST(WholeFileSaveTest, AFullDiskLeavesTheOldContentAndNoSibling) {
  for (std::uint64_t room = 0; room < 8; ++room) {
    TemporaryFolder disk;
    disk.Write("a.fil", "old");
    FailingFileSystem files(RealFileSystem());
    files.AllowBytes(room);
    const auto saved = ProgramFolder(files, disk.path()).WriteWhole("a.fil", "7 bytes");
    EXPECT_EQ(static_cast<bool>(saved), room >= 7);
    EXPECT_EQ(disk.Read("a.fil"), room >= 7 ? "7 bytes" : "old");
    EXPECT_THAT(disk.Names(), ElementsAre("a.fil"));
  }
}

TEST(WholeFileSaveTest, AFileKeepsItsPermissions) {
  TemporaryFolder disk;
  disk.Write("a.fil", "old");
  const std::string path = disk.path() + "/a.fil";
  ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
  EXPECT_TRUE(SaveWhole(RealFileSystem(), disk.path(), path, "new"));
  struct stat status;
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST(WholeFileSaveTest, TheLongestNameCanBeSaved) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  const std::string name(255, 'n');
  EXPECT_TRUE(folder.WriteWhole(name, "x"));
  EXPECT_THAT(disk.Names(), ElementsAre(name));
}

TEST(WholeFileSaveTest, TheSweepTakesOrphansAndNothingElse) {
  TemporaryFolder disk;
  for (const char* name : {".tarnwell-lock", ".tarnwell-save-0123abcd", ".tarnwell-save-ffffffff",
                           ".tarnwell", "a.fil", "x.tarnwell-save-0123abcd"}) {
    disk.Write(name, "x");
  }
  ProgramFolder(RealFileSystem(), disk.path()).Recover();
  EXPECT_THAT(disk.Names(),
              ElementsAre(".tarnwell", ".tarnwell-lock", "a.fil", "x.tarnwell-save-0123abcd"));
}

}  // namespace
}  // namespace tarnwell::storage
