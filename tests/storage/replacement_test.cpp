#include "storage/replacement.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "support/child_process.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using tarnwell::testing::ChildProcess;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;

void WriteOld(const TemporaryFolder& disk) {
  disk.Write("A.fil", "old a");
  disk.Write("B.fil", "old b");
  disk.Write("Gone.fil", "old gone");
  disk.Write("Stays.fil", "stays");
}

// A, whatever its capitals, and a new file C come; B and Gone go.
Outcome Replace(FileSystem& files, const std::string& path) {
  ProgramFolder folder(files, path);
  Replacement replacement(folder, "Sample");
  if (const Outcome begun = replacement.Begin(); !begun) return begun;
  for (const char* name : {"a.FIL", "C.fil"}) {
    const auto file = replacement.Make(name);
    if (!file || !file->WriteAt(0, "new") || !file->Flush() || !file->Close()) {
      return Fault::kBroken;
    }
  }
  replacement.Remove("B.fil");
  replacement.Remove("Gone.fil");
  return replacement.Commit();
}

// "old" or "new"; anything between is told in full.
std::string StateOf(const TemporaryFolder& disk) {
  std::string state;
  for (const std::string& name : disk.Names()) state += name + "=" + disk.Read(name) + ";";
  if (state == "A.fil=old a;B.fil=old b;Gone.fil=old gone;Stays.fil=stays;") return "old";
  if (state == "A.fil=new;C.fil=new;Stays.fil=stays;") return "new";
  return state;
}

TEST(ReplacementTest, FilesComeAndGoTogether) {
  TemporaryFolder disk;
  WriteOld(disk);
  EXPECT_TRUE(Replace(RealFileSystem(), disk.path()));
  EXPECT_EQ(StateOf(disk), "new");
}

TEST(ReplacementTest, ANameThatLeavesTheFolderIsRefused) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  Replacement replacement(folder, "Sample");
  ASSERT_TRUE(replacement.Begin());
  for (const char* name : {"../up.fil", "/etc/x", "a/b", "..", "", ".tarnwell-lock", "c:x"}) {
    EXPECT_EQ(replacement.Make(name), nullptr) << name;
  }
}

TEST(ReplacementTest, ALinkOrAFolderOfThatNameIsNotReplaced) {
  TemporaryFolder disk;
  TemporaryFolder outside;
  outside.Write("target", "outside");
  ASSERT_EQ(::symlink((outside.path() + "/target").c_str(), (disk.path() + "/A.fil").c_str()), 0);
  EXPECT_EQ(Replace(RealFileSystem(), disk.path()).fault(), Fault::kNotPlain);
  EXPECT_THAT(disk.Names(), ElementsAre("A.fil"));
  EXPECT_EQ(outside.Read("target"), "outside");
}

TEST(ReplacementTest, ACallThatFailsLeavesAllOldOrAllNewFiles) {
  bool failed = true;
  for (int call = 1; failed; ++call) {
    TemporaryFolder disk;
    WriteOld(disk);
    FailingFileSystem files(RealFileSystem());
    bool is_reached = false;
    files.FailWhen([&](int number) { return number == call && (is_reached = true); });
    const Outcome outcome = Replace(files, disk.path());
    failed = is_reached;
    files.Recover();
    ProgramFolder folder(RealFileSystem(), disk.path());
    folder.Recover();
    RecoverReplacement(folder);
    EXPECT_EQ(StateOf(disk), outcome ? "new" : "old") << call;
  }
}

// From the moment of a call on nothing works any more, as on a disk that was pulled out.
TEST(ReplacementTest, ADiskThatFailsForGoodLeavesAllOldOrAllNewFiles) {
  bool failed = true;
  for (int call = 1; failed; ++call) {
    TemporaryFolder disk;
    WriteOld(disk);
    FailingFileSystem files(RealFileSystem());
    files.FailFrom(call);
    Replace(files, disk.path());
    failed = files.calls() >= call;
    ProgramFolder folder(RealFileSystem(), disk.path());
    folder.Recover();
    const RecoveredReplacement recovered = RecoverReplacement(folder);
    EXPECT_THAT(StateOf(disk), ::testing::AnyOf("old", "new")) << call;
    EXPECT_EQ(recovered.what, recovered.recovery == Recovery::kNone ? "" : "Sample");
  }
}

TEST(ReplacementTest, AProcessKilledBeforeAnyCallIsFinishedOrUndoneEvenIfThatIsKilledToo) {
  constexpr int kKilled = 9;
  int code = kKilled;
  int finished = 0;
  int undone = 0;
  const auto kill_at = [](FailingFileSystem& files, int call) {
    files.FailWhen([call](int number) {
      if (number == call) ::_exit(kKilled);
      return false;
    });
  };
  for (int call = 1; code == kKilled; ++call) {
    TemporaryFolder disk;
    WriteOld(disk);
    code = ChildProcess([&] {
             FailingFileSystem files(RealFileSystem());
             kill_at(files, call);
             Replace(files, disk.path());
           }).Wait();
    ChildProcess([&] {
      FailingFileSystem files(RealFileSystem());
      kill_at(files, call % 23 + 1);
      ProgramFolder folder(files, disk.path());
      RecoverReplacement(folder);
    }).Wait();
    ProgramFolder folder(RealFileSystem(), disk.path());
    folder.Recover();
    const Recovery recovery = RecoverReplacement(folder).recovery;
    finished += recovery == Recovery::kFinished;
    undone += recovery == Recovery::kUndone;
    EXPECT_THAT(StateOf(disk), ::testing::AnyOf("old", "new")) << call;
    EXPECT_FALSE(recovery == Recovery::kFinished && StateOf(disk) != "new") << call;
    EXPECT_FALSE(recovery == Recovery::kUndone && StateOf(disk) != "old") << call;
  }
  EXPECT_EQ(code, 0);
  EXPECT_GT(finished, 0);
  EXPECT_GT(undone, 0);
}

TEST(ReplacementTest, AJournalThatCantBeReadLeavesEverythingWhereItIs) {
  TemporaryFolder disk;
  disk.Write(".tarnwell-replacement", "no journal");
  disk.Write(".tarnwell-old-00000001", "precious");
  ProgramFolder folder(RealFileSystem(), disk.path());
  EXPECT_EQ(RecoverReplacement(folder).recovery, Recovery::kStuck);
  EXPECT_EQ(disk.Read(".tarnwell-old-00000001"), "precious");
}

}  // namespace
}  // namespace tarnwell::storage
