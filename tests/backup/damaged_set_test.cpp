// Sets whose disks aren't those that the backup made.

#include <gtest/gtest.h>

#include "backup/backup_rig.h"

namespace tarnwell::backup {
namespace {

using tarnwell::testing::BackupRig;

// Of a set on three disks.
class DamagedSetTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig_.FillCompany();
    rig_.room = 3600;
    ASSERT_EQ(rig_.BackUp(2), BackupEnd::kComplete);
    ASSERT_GE(rig_.person.asked.size(), 2u);
    before_ = rig_.Live();
    rig_.live.Write("Name1.Fil", "newer");
    before_["Name1.Fil"] = "newer";
  }
  // The person puts that one in for each disk asked for, and gives up at the third question.
  void ExpectUnchangedWith(int wrong) {
    rig_.person = {};
    rig_.PutIn(1);
    rig_.person.on_ask = [this, wrong](int) {
      rig_.PutIn(wrong);
      return rig_.person.asked.size() < 3;
    };
    EXPECT_EQ(rig_.RestoreAs(3), RestoreEnd::kCancelled);
    EXPECT_EQ(rig_.Live(), before_);
  }

  BackupRig rig_;
  std::map<std::string, std::string> before_;
};

TEST_F(DamagedSetTest, AMissingAnExchangedAForeignOrACutDiskChangesNothing) {
  ExpectUnchangedWith(9);  // empty
  ExpectUnchangedWith(3);
  ExpectUnchangedWith(1);
  rig_.disk(2).Write("DiskInfo.hm1", rig_.disk(2).Read("DiskInfo.hm1").replace(2, 4, "Hole"));
  ExpectUnchangedWith(2);
  rig_.disk(2).Write("DiskInfo.hm1", rig_.disk(2).Read("DiskInfo.hm1").replace(2, 4, "Home"));
  const std::string records = rig_.disk(2).Read("Name1.hm2");
  rig_.disk(2).Write("Name1.hm2", records.substr(0, 900));
  ExpectUnchangedWith(2);
  rig_.disk(2).Remove("Name1.hm2");
  ExpectUnchangedWith(2);
}

TEST_F(DamagedSetTest, ADiskOfAnotherBackupIsNotTakenForThisOnes) {
  BackupRig other;
  other.FillCompany();
  other.room = 4700;
  ASSERT_EQ(other.BackUp(2), BackupEnd::kComplete);
  for (const char* name : {"DiskInfo.hm1", "Name1.hm2"}) {
    rig_.disk(2).Write(name, other.disk(2).Read(name));
  }
  rig_.person = {};
  rig_.PutIn(1);
  rig_.person.on_ask = [this](int number) {
    rig_.PutIn(number);
    return rig_.person.asked.size() < 4;
  };
  EXPECT_EQ(rig_.RestoreAs(3), RestoreEnd::kCancelled);
  EXPECT_GT(rig_.person.unreadable, 0);
  EXPECT_EQ(rig_.Live(), before_);
}

TEST_F(DamagedSetTest, TheSecondDiskAloneIsNoSet) {
  rig_.person = {};
  rig_.PutIn(2);
  rig_.RestoreAs(3);
  EXPECT_FALSE(rig_.is_found);
  EXPECT_EQ(rig_.Live(), before_);
}

TEST_F(DamagedSetTest, AnInfoFileCutAnywhereIsNoneOrIsNotWhole) {
  const std::string whole = rig_.disk(1).Read("DiskInfo.hm1");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    rig_.disk(1).Write("DiskInfo.hm1", whole.substr(0, size));
    RestoreRun run(*SetOf(3), tarnwell::testing::kYear, rig_.folder, rig_.person);
    rig_.PutIn(1);
    const bool tells_all = size >= 79;  // behind the mark that it was finished
    EXPECT_EQ(run.Find() && run.Check().empty(), tells_all) << size;
  }
}

}  // namespace
}  // namespace tarnwell::backup
