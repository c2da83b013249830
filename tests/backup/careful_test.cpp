// What may go wrong on the way there and back, and leaves the program's files as they were.

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "backup/backup_rig.h"
#include "storage/replacement.h"
#include "support/child_process.h"

namespace tarnwell::backup {
namespace {

using tarnwell::testing::BackupRig;
using tarnwell::testing::ChildProcess;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::Quoted;
using tarnwell::testing::TemporaryFolder;
using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr int kSpannedSets[] = {0, 2, 26, 32, 38, 40};

class CarefulTest : public ::testing::Test {
 protected:
  void SetUp() override { rig_.FillCompany(); }

  BackupRig rig_;
};

TEST_F(CarefulTest, ADiskThatTakesNothingKeepsItsOldSet) {
  for (const int mode : kSpannedSets) {
    BackupRig rig;
    rig.FillCompany();
    ASSERT_EQ(rig.BackUp(mode), BackupEnd::kComplete);
    const auto names = rig.disk(1).Names();
    rig.files.DiskAt(rig.disk(1).path()).is_read_only = true;
    EXPECT_EQ(rig.BackUp(mode), BackupEnd::kNotWritable) << mode;
    EXPECT_EQ(rig.disk(1).Names(), names) << mode;
  }
}

TEST_F(CarefulTest, OnlyTheSetsOwnFormsGoFromADisk) {
  const std::vector<std::string> theirs = {"letter.hml", "Name1.hmx", "page.html", "2025.Bup",
                                           "x.Fl2",      ".hm1",      " 2025.Bb1"};
  for (const std::string& name : theirs) rig_.disk(1).Write(name, "mine");
  for (const char* old : {"Name1.hm7", "old.HM2", "x.hb1", "x.HB3", " 2026.Bb1", "Disk4.Bbk"}) {
    rig_.disk(1).Write(old, "old");
  }
  ASSERT_EQ(::mkdir((rig_.disk(1).path() + "/folder.hb2").c_str(), 0700), 0);
  for (const int mode : {0, 2, 32, 36}) ASSERT_EQ(rig_.BackUp(mode), BackupEnd::kComplete);
  for (const std::string& name : theirs) EXPECT_EQ(rig_.disk(1).Read(name), "mine") << name;
  for (const char* old : {"Name1.hm7", "old.HM2", "x.hb1", "x.HB3", "Disk4.Bbk"}) {
    EXPECT_THAT(rig_.disk(1).Names(), Not(Contains(old)));
  }
}

TEST_F(CarefulTest, ADiskThatForgetsIsFoundOut) {
  for (const int mode : {38, 36}) {
    BackupRig rig;
    rig.live.Write("ADDBK1.Fil", tarnwell::testing::Bytes(600'000, 1));
    rig.live.Write("ADDBK2.Fil", "names");
    rig.live.Write("2026.Fil", tarnwell::testing::Bytes(600'000, 1));
    rig.files.DiskAt(rig.disk(1).path()).forgets = true;
    const BackupEnd end = rig.BackUp(mode);
    EXPECT_NE(end, BackupEnd::kComplete) << mode;
    EXPECT_THAT(rig.disk(1).Names(), Not(Contains("2026.Bup"))) << mode;
  }
}

TEST_F(CarefulTest, WhoGivesUpAtAFullDiskFindsNothingOfTheRunOnIt) {
  for (const int mode : kSpannedSets) {
    BackupRig rig;
    rig.FillCompany();
    rig.room = 3300;
    rig.PutIn(1);
    rig.person.on_ask = [](int) { return false; };
    BackupRun run(*SetOf(mode), tarnwell::testing::kYear, rig.folder, rig.person);
    const BackupEnd end = run.Run();
    if (end == BackupEnd::kComplete) continue;
    EXPECT_EQ(end, BackupEnd::kCancelled) << mode;
    EXPECT_TRUE(run.is_cleared());
    EXPECT_THAT(rig.disk(1).Names(), IsEmpty()) << mode;
  }
}

TEST_F(CarefulTest, AnExchangedDiskIsNotClearedForTheOneBefore) {
  rig_.room = 3300;
  rig_.PutIn(1);
  rig_.disk(2).Write("Name1.hm1", "another");
  rig_.person.on_ask = [this](int) {
    rig_.PutIn(2);
    return false;
  };
  BackupRun run(*SetOf(2), tarnwell::testing::kYear, rig_.folder, rig_.person);
  EXPECT_EQ(run.Run(), BackupEnd::kCancelled);
  EXPECT_FALSE(run.is_cleared());
  EXPECT_EQ(rig_.disk(2).Read("Name1.hm1"), "another");
}

TEST_F(CarefulTest, TheDiskThatIsFullIsAskedForAgain) {
  rig_.room = 3300;
  rig_.PutIn(1);
  int asked = 0;
  rig_.person.on_ask = [&](int number) {
    if (++asked > 3) rig_.PutIn(number);
    return true;
  };
  BackupRun run(*SetOf(2), tarnwell::testing::kYear, rig_.folder, rig_.person);
  EXPECT_EQ(run.Run(), BackupEnd::kComplete);
  EXPECT_THAT(std::vector<int>(rig_.person.asked.begin(), rig_.person.asked.begin() + 4),
              ElementsAre(2, 2, 2, 2));
}

TEST_F(CarefulTest, APulledDiskIsReplacedByAnotherOfItsNumber) {
  for (const int mode : kSpannedSets) {
    BackupRig rig;
    rig.FillCompany();
    rig.PutIn(1);
    int steps = 0;
    rig.person.on_go = [&] {
      if (++steps == 2) std::filesystem::remove_all(rig.disk(1).path());
    };
    rig.person.on_ask = [&](int number) {
      rig.PutIn(number + 10);
      return true;
    };
    BackupRun run(*SetOf(mode), tarnwell::testing::kYear, rig.folder, rig.person);
    ASSERT_EQ(run.Run(), BackupEnd::kComplete) << mode;
    EXPECT_THAT(rig.person.asked, ElementsAre(1)) << mode;
    rig.person = {};
    rig.PutIn(11);
    EXPECT_EQ(rig.RestoreAs(mode + 1), RestoreEnd::kComplete) << mode;
    EXPECT_EQ(rig.report.copied.size(), run.report().copied.size()) << mode;
  }
}

TEST_F(CarefulTest, StoppingARestoreAnywhereChangesNothing) {
  for (const int mode : {26, 38, 44}) {
    BackupRig rig;
    rig.FillCompany();
    ASSERT_EQ(rig.BackUp(mode), BackupEnd::kComplete);
    rig.live.Write("EmployPolicy46.Fl2", "newer");
    const auto before = rig.Live();
    RestoreEnd end = RestoreEnd::kStopped;
    for (int steps = 0; end == RestoreEnd::kStopped; ++steps) {
      ASSERT_EQ(rig.Live(), before) << mode << " " << steps;
      rig.person = {};
      rig.PutIn(1);
      rig.person.steps_before_stop = steps;
      end = rig.RestoreAs(mode + 1);
    }
    EXPECT_EQ(end, RestoreEnd::kComplete);
  }
}

// The disk fails at one call of the backup or the restore, or for good from it on.
TEST_F(CarefulTest, AFailingCallNeverLeavesAPartOfASet) {
  for (const bool for_good : {false, true}) {
    for (const int mode : {26, 44}) {
      BackupRig made;
      made.FillCompany();
      ASSERT_EQ(made.BackUp(mode), BackupEnd::kComplete);
      const auto full = made.Live();
      for (const char* name : {"Name1.Fil", "ACar1.Fil", "2026.Sl1"}) {
        made.live.Write(name, "newer");
      }
      const auto newer = made.Live();
      bool is_reached = true;
      for (int call = 1; is_reached; call += 7) {
        for (const auto& [name, content] : newer) made.live.Write(name, content);
        is_reached = false;
        const int first = made.files.calls();
        made.files.FailWhen([&](int number) {
          const bool fails = for_good ? number >= first + call : number == first + call;
          is_reached = is_reached || fails;
          return fails;
        });
        made.person = {};
        made.PutIn(1);
        const RestoreEnd end = made.RestoreAs(mode + 1);
        made.files.Recover();
        made.folder.Recover();
        storage::RecoverReplacement(made.folder);
        const auto after = made.Live();
        const bool is_old = after == newer;
        bool is_new = true;
        for (const std::string& name : made.report.copied) {
          is_new = is_new && after.at(name) == full.at(name);
        }
        EXPECT_TRUE(is_old || (is_new && end != RestoreEnd::kStopped)) << mode << " " << call;
        EXPECT_EQ(after.size(), newer.size()) << mode << " " << call;
      }
    }
  }
}

TEST_F(CarefulTest, AProcessKilledInARestoreLeavesTheWholeOldOrTheWholeNewFiles) {
  constexpr int kKilled = 9;
  ASSERT_EQ(rig_.BackUp(44), BackupEnd::kComplete);
  const std::string old_sheet = rig_.live.Read("2026.Sl1");
  int code = kKilled;
  for (int call = 1; code == kKilled; call += 2) {
    rig_.live.Write("2026.Sl1", "newer");
    rig_.live.Write("2026.Sl2", "99");
    code = ChildProcess([&] {
             const int first = rig_.files.calls();
             rig_.files.FailWhen([first, call](int number) {
               if (number == first + call) ::_exit(kKilled);
               return false;
             });
             rig_.person = {};
             rig_.PutIn(1);
             rig_.RestoreAs(45);
           }).Wait();
    rig_.folder.Recover();
    storage::RecoverReplacement(rig_.folder);
    const std::string state = rig_.live.Read("2026.Sl1") + "/" + rig_.live.Read("2026.Sl2");
    EXPECT_THAT(state, AnyOf("newer/99", old_sheet + "/20")) << call;
    EXPECT_THAT(rig_.live.Names(), Not(Contains(::testing::StartsWith(".tarnwell-")))) << call;
  }
  EXPECT_EQ(code, 0);
}

TEST_F(CarefulTest, AProcessKilledInABackupLeavesNoDiskThatLooksWhole) {
  constexpr int kKilled = 9;
  ASSERT_EQ(rig_.BackUp(2), BackupEnd::kComplete);
  const auto live = rig_.Live();
  int code = kKilled;
  for (int call = 1; code == kKilled; ++call) {
    code = ChildProcess([&] {
             const int first = rig_.files.calls();
             rig_.files.FailWhen([first, call](int number) {
               if (number == first + call) ::_exit(kKilled);
               return false;
             });
             rig_.BackUp(2);
           }).Wait();
    EXPECT_EQ(rig_.Live(), live);
    RestoreRun run(*SetOf(3), tarnwell::testing::kYear, rig_.folder, rig_.person);
    rig_.PutIn(1);
    if (!run.Find() || !run.Check().empty()) continue;
    EXPECT_EQ(rig_.disk(1).Read("Name1.hm1"), live.at("Name1.Fil")) << call;
    EXPECT_EQ(rig_.disk(1).Read("Name3.Fil"), live.at("Name3.Fil")) << call;
  }
}

// The next start tells it as it stands there.
TEST_F(CarefulTest, AnInterruptedRestoreIsNotedInTheWordsThatAPersonKnowsTheSetBy) {
  for (const auto& [mode, words] : {std::pair{32, "\n2026 Daily Planner\n"},
                                    {36, "\n2026 Budget\n"},
                                    {38, "\nAddress Book\n"}}) {
    ASSERT_EQ(rig_.BackUp(mode), BackupEnd::kComplete);
    rig_.person.steps_before_stop = 0;
    std::string journal;
    rig_.person.on_go = [&] { journal = rig_.live.Read(".tarnwell-replacement"); };
    EXPECT_EQ(rig_.RestoreAs(mode + 1), RestoreEnd::kStopped) << mode;
    EXPECT_THAT(journal, HasSubstr(words));
  }
}

TEST_F(CarefulTest, NamesInASetNeverLeaveTheProgramsFolder) {
  TemporaryFolder outside;
  outside.Write("secret", "outside");
  rig_.live.Write("JobHold.Fl5", Quoted({"../up", "/etc/passwd", "C:\\x", "..", "link", "Ann"}));
  ASSERT_EQ(rig_.BackUp(0), BackupEnd::kComplete);
  TemporaryFolder& disk = rig_.disk(1);
  for (const char* name : {"up.Hb2", "passwd.Hb2", "..-up.Hb2", "--up.Hb2", "-etc-passwd.Hb2"}) {
    disk.Write(name, "bad");
  }
  rig_.Wipe();
  ASSERT_EQ(rig_.Restore(1), RestoreEnd::kComplete);
  for (const std::string& name : rig_.live.Names()) {
    EXPECT_EQ(name.find('/'), std::string::npos);
    EXPECT_FALSE(name.starts_with(".")) << name;
  }
  ASSERT_EQ(::symlink((outside.path() + "/secret").c_str(), (disk.path() + "/link.Hb2").c_str()),
            0);
  const auto before = rig_.Live();
  EXPECT_EQ(rig_.Restore(1), RestoreEnd::kUnreadable);
  EXPECT_EQ(rig_.Live(), before);
  disk.Remove("link.Hb2");
  ASSERT_EQ(::mkfifo((disk.path() + "/link.Hb2").c_str(), 0600), 0);
  EXPECT_EQ(rig_.Restore(1), RestoreEnd::kUnreadable);
  EXPECT_EQ(outside.Read("secret"), "outside");
}

TEST_F(CarefulTest, AFileThatLiesAboutItsLengthIsNotTaken) {
  ASSERT_EQ(rig_.BackUp(36), BackupEnd::kComplete);
  rig_.files.DiskAt(rig_.disk(1).path()).told_more = 10;
  rig_.live.Write("2026.Fil", "newer");
  EXPECT_EQ(rig_.Restore(37), RestoreEnd::kUnreadable);
  EXPECT_EQ(rig_.live.Read("2026.Fil"), "newer");
}

TEST_F(CarefulTest, ALineOfTooManyValuesIsCutAndTold) {
  rig_.live.Write("MCar1.Fil", Quoted(std::vector<std::string>(30'002, "v")));
  ASSERT_EQ(rig_.BackUp(26), BackupEnd::kComplete);
  ASSERT_EQ(rig_.Restore(27), RestoreEnd::kComplete);
  EXPECT_EQ(rig_.live.Read("MCar1.Fil"), Quoted(std::vector<std::string>(30'001, "v")));
  ASSERT_EQ(rig_.report.left_out.size(), 1u);
  EXPECT_EQ(rig_.report.left_out[0].file, "MCar1.Fil");
}

TEST_F(CarefulTest, DocumentsOnNoListStayAndAreTold) {
  rig_.live.Write("Orphan.Fl5", "nobody lists me");
  rig_.live.Write("TODOActv.Fl2", "general");
  ASSERT_EQ(rig_.BackUp(0), BackupEnd::kComplete);
  ASSERT_EQ(rig_.report.left_out.size(), 2u);
  rig_.live.Write("Later.Fl5", "made and listed after the backup");
  rig_.live.Write("JobHold.Fl5", Quoted({"Ann", "Later"}));
  ASSERT_EQ(rig_.Restore(1), RestoreEnd::kComplete);
  EXPECT_EQ(rig_.live.Read("Orphan.Fl5"), "nobody lists me");
  EXPECT_EQ(rig_.live.Read("TODOActv.Fl2"), "general");
  EXPECT_THAT(rig_.live.Names(), Not(Contains("Later.Fl5")));
  EXPECT_EQ(rig_.live.Read("Ann.Fl5"), "job of Ann");
  EXPECT_EQ(rig_.live.Read("ann.Fl6"), "action against Ann");
}

TEST_F(CarefulTest, ASetOfAnOlderProgramGivesOneCopyToAllOfItsStem) {
  ASSERT_EQ(rig_.BackUp(0), BackupEnd::kComplete);
  for (const char* name : {"ann (6).Hb2", "ANN (7).Hb2"}) rig_.disk(1).Remove(name);
  rig_.disk(1).Write("Ann.Hb2", "praise of Ann");
  rig_.Wipe();
  ASSERT_EQ(rig_.Restore(1), RestoreEnd::kComplete);
  for (const char* name : {"Ann.Fl5", "ann.Fl6", "ANN.Fl7"}) {
    EXPECT_EQ(rig_.live.Read(name), "praise of Ann") << name;
  }
}

TEST_F(CarefulTest, AFileThatCantBeReadMakesTheBackupIncomplete) {
  rig_.live.Remove("Stat1.Fil");
  ASSERT_EQ(::mkdir((rig_.live.path() + "/Stat1.Fil").c_str(), 0700), 0);
  ASSERT_EQ(rig_.BackUp(0), BackupEnd::kComplete);
  EXPECT_TRUE(rig_.report.is_incomplete());
}

}  // namespace
}  // namespace tarnwell::backup
