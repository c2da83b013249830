// What a process leaves behind that was really killed.

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <random>

#include "storage/folder_lock.h"
#include "storage/program_folder.h"
#include "support/child_process.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using Child = tarnwell::testing::ChildProcess;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;
using ::testing::AnyOf;
using ::testing::ElementsAre;

void SaveInEndlessTurns(const TemporaryFolder& disk, const std::string& one,
                        const std::string& other) {
  ProgramFolder folder(RealFileSystem(), disk.path());
  for (;;) {
    folder.WriteWhole("a.fil", one);
    folder.WriteWhole("a.fil", other);
  }
}

TEST(KilledProcessTest, ASaveThatEndsBeforeAnyCallLeavesTheWholeOldOrTheWholeNewContent) {
  constexpr int kKilled = 9;
  const std::string old_content(5000, 'o');
  const std::string new_content(7000, 'n');
  int code = kKilled;
  for (int call = 1; code == kKilled; ++call) {
    TemporaryFolder disk;
    disk.Write("a.fil", old_content);
    Child child([&] {
      FailingFileSystem files(RealFileSystem());
      files.FailWhen([call](int number) {
        if (number == call) ::_exit(kKilled);
        return false;
      });
      ProgramFolder(files, disk.path()).WriteWhole("a.fil", new_content);
    });
    code = child.Wait();
    EXPECT_THAT(disk.Read("a.fil"), AnyOf(old_content, new_content)) << call;
    EXPECT_TRUE(code == kKilled || disk.Read("a.fil") == new_content);
    ProgramFolder(RealFileSystem(), disk.path()).Recover();
    EXPECT_THAT(disk.Names(), ElementsAre("a.fil")) << call;
  }
  EXPECT_EQ(code, 0);
}

TEST(KilledProcessTest, ASaverKilledAtAnyMomentLeavesOneOfItsContentsWhole) {
  constexpr int kRounds = 60;
  const std::string one(300000, '1');
  const std::string other(200000, '2');
  TemporaryFolder disk;
  disk.Write("a.fil", one);
  std::mt19937 random(20260309);
  std::uniform_int_distribution<useconds_t> microseconds(0, 8000);
  int orphans = 0;
  for (int round = 0; round < kRounds || (orphans == 0 && round < 10 * kRounds); ++round) {
    Child child([&] { SaveInEndlessTurns(disk, one, other); });
    ::usleep(microseconds(random));
    child.Kill();
    EXPECT_THAT(disk.Read("a.fil"), AnyOf(one, other)) << round;
    orphans += static_cast<int>(disk.Names().size()) - 1;
    ProgramFolder(RealFileSystem(), disk.path()).Recover();
    ASSERT_THAT(disk.Names(), ElementsAre("a.fil")) << round;
  }
  EXPECT_GT(orphans, 0) << "no kill ever hit a save";
}

TEST(FolderLockTest, ExcludesASecondHolderUntilTheFirstLetsGo) {
  TemporaryFolder disk;
  auto lock = FolderLock::TryTake(disk.path()).lock;
  ASSERT_NE(lock, nullptr);
  EXPECT_TRUE(FolderLock::TryTake(disk.path()).is_held);
  Child rival([&] { ::_exit(FolderLock::TryTake(disk.path()).lock ? 1 : 2); });
  EXPECT_EQ(rival.Wait(), 2);
  lock.reset();
  EXPECT_NE(FolderLock::TryTake(disk.path()).lock, nullptr);
  EXPECT_EQ(FolderLock::TryTake(disk.path() + "/gone").lock, nullptr);
}

TEST(FolderLockTest, WhatIsNoFileOfOursIsRefusedAtOnceAndNotFollowed) {
  TemporaryFolder disk;
  const std::string lock = disk.path() + "/.tarnwell-lock";
  const std::function<void()> others[] = {
      [&] { ASSERT_EQ(::symlink((disk.path() + "/outside").c_str(), lock.c_str()), 0); },
      [&] { ASSERT_EQ(::mkfifo(lock.c_str(), 0600), 0); },
      [&] { ASSERT_EQ(::mkdir(lock.c_str(), 0700), 0); },
  };
  for (const auto& put : others) {
    put();
    const auto attempt = FolderLock::TryTake(disk.path());
    EXPECT_EQ(attempt.lock, nullptr);
    EXPECT_FALSE(attempt.is_held);
    EXPECT_EQ(attempt.fault, Fault::kNotPlain);
    EXPECT_THAT(disk.Names(), ElementsAre(".tarnwell-lock"));
    disk.Remove(".tarnwell-lock");
  }
}

TEST(FolderLockTest, EndsWithAKilledProcess) {
  TemporaryFolder disk;
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  Child holder([&] {
    const auto lock = FolderLock::TryTake(disk.path()).lock;
    (void)!::write(ready[1], lock ? "y" : "n", 1);
    for (;;) ::pause();
  });
  char signal;
  ASSERT_EQ(::read(ready[0], &signal, 1), 1);
  ASSERT_EQ(signal, 'y');
  EXPECT_EQ(FolderLock::TryTake(disk.path()).lock, nullptr);
  holder.Kill();
  EXPECT_NE(FolderLock::TryTake(disk.path()).lock, nullptr);
  ::close(ready[0]);
  ::close(ready[1]);
}

}  // namespace
}  // namespace tarnwell::storage
