// Every set on disks and back again.

#include <gmock/gmock.h>

#include "backup/backup_rig.h"
#include "support/format_page.h"

namespace tarnwell::backup {
namespace {

using tarnwell::testing::BackupRig;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct SetCase {
  const char* name;
  int mode;
  std::uint64_t room;  // of a disk, so that the set takes three or more; 0 where it never spans
};

class EverySetTest : public ::testing::TestWithParam<SetCase> {
 protected:
  void SetUp() override { rig_.FillCompany(); }

  // The files that only this set has come back alone.
  void ExpectBack() {
    const auto before = rig_.Live();
    const Report made = rig_.report;
    rig_.Wipe();
    ASSERT_EQ(rig_.Restore(GetParam().mode + 1), RestoreEnd::kComplete);
    EXPECT_THAT(rig_.wrong, IsEmpty());
    const auto after = rig_.Live();
    EXPECT_EQ(after.size(), made.copied.size());
    for (const auto& [name, content] : after) {
      const auto old = before.find(name);
      ASSERT_NE(old, before.end()) << name;
      EXPECT_EQ(content, old->second) << name;
    }
  }

  BackupRig rig_;
};

TEST_P(EverySetTest, ComesBackByteForByte) {
  ASSERT_EQ(rig_.BackUp(GetParam().mode), BackupEnd::kComplete);
  EXPECT_THAT(rig_.person.asked, IsEmpty());
  ExpectBack();
}

class SpannedSetTest : public EverySetTest {};

TEST_P(SpannedSetTest, ComesBackFromThreeDisksAndMore) {
  rig_.room = GetParam().room;
  ASSERT_EQ(rig_.BackUp(GetParam().mode), BackupEnd::kComplete);
  EXPECT_GE(rig_.person.asked.size(), 2u);
  ExpectBack();
}

TEST_P(SpannedSetTest, IsWholeHoweverLittleADiskTakes) {
  for (std::uint64_t room = GetParam().room; room < GetParam().room + 1300; room += 211) {
    BackupRig rig;
    rig.FillCompany();
    rig.room = room;
    const auto before = rig.Live();
    ASSERT_EQ(rig.BackUp(GetParam().mode), BackupEnd::kComplete) << room;
    const std::size_t copied = rig.report.copied.size();
    rig.Wipe();
    ASSERT_EQ(rig.Restore(GetParam().mode + 1), RestoreEnd::kComplete) << room;
    const auto after = rig.Live();
    EXPECT_EQ(after.size(), copied) << room;
    for (const auto& [name, content] : after) EXPECT_EQ(content, before.at(name)) << room << name;
  }
}

constexpr SetCase kSpanned[] = {{"Documents", 0, 900},  {"Employees", 2, 3600},
                                {"Vehicles", 26, 900},  {"Planner", 32, 2100},
                                {"Contacts", 38, 3300}, {"Images", 40, 1500}};
constexpr SetCase kOfOneDisk[] = {{"Budget", 36, 0}, {"SickLeave", 44, 0}, {"Vacation", 46, 0}};

std::string NameOf(const ::testing::TestParamInfo<SetCase>& set) { return set.param.name; }

INSTANTIATE_TEST_SUITE_P(OfOneDisk, EverySetTest, ::testing::ValuesIn(kOfOneDisk), NameOf);
INSTANTIATE_TEST_SUITE_P(Spanned, EverySetTest, ::testing::ValuesIn(kSpanned), NameOf);
INSTANTIATE_TEST_SUITE_P(Spanned, SpannedSetTest, ::testing::ValuesIn(kSpanned), NameOf);

// From a disk that can't even take its info file to one that takes all.
TEST(FullDiskTest, ADiskThatIsFullAtAnyByteLosesNothing) {
  for (std::uint64_t room = 0; room < 2000; room += room < 1070 ? 107 : 19) {
    BackupRig rig;
    rig.live.Write(" 2026.Cal", tarnwell::testing::Bytes(900 * 2 + 77, 1));
    const auto before = rig.Live();
    rig.room = room;
    const BackupEnd end = rig.BackUp(32);
    EXPECT_EQ(rig.Live(), before);
    // An info file and a record take 1080 bytes.
    EXPECT_EQ(end == BackupEnd::kComplete, room >= 1080) << room;
    if (end != BackupEnd::kComplete) continue;
    rig.Wipe();
    ASSERT_EQ(rig.Restore(33), RestoreEnd::kComplete) << room;
    EXPECT_EQ(rig.Live(), before) << room;
  }
}

// The layouts are those of docs/formats/backup-sets.md.
TEST(BackupLayoutTest, TheFirstOfTwoDisksOfContactsLiesAsItsPageSays) {
  BackupRig rig;
  rig.live.Write("ADDBK1.Fil", std::string(1190, 'a') + std::string(1190, 'b'));
  rig.live.Write("ADDBK2.Fil", "names");
  rig.live.Write("ADDBK3.Fil", std::string(250, 'c') + "d");
  rig.room = 90 + 5 + 1440 + 100;
  ASSERT_EQ(rig.BackUp(38), BackupEnd::kComplete);
  const std::string info =
      tarnwell::testing::FileOf(tarnwell::testing::ReadFormatExample("backup-sets.md"));
  EXPECT_EQ(rig.disk(1).Read("DiskInfo.ZZ1"), info);
  EXPECT_EQ(rig.disk(1).Read("ADDBK2.Fil"), "names");
  EXPECT_EQ(rig.disk(1).Read("Addbk1.ZZ1").substr(0, 1190), std::string(1190, 'a'));
  EXPECT_THAT(rig.disk(2).Names(), ElementsAre("Addbk1.ZZ2", "Addbk3.ZZ2", "DiskInfo.ZZ1"));
  EXPECT_EQ(rig.disk(2).Read("Addbk1.ZZ2"), std::string(1190, 'b'));
  EXPECT_EQ(rig.disk(2).Read("Addbk3.ZZ2"), "d");
  EXPECT_EQ(rig.disk(2).Read("DiskInfo.ZZ1").substr(15, 3), std::string("\x01\0002", 3));
  EXPECT_EQ(rig.disk(2).Read("DiskInfo.ZZ1").substr(30, 2), std::string(2, '\0'));
}

TEST(BackupLayoutTest, AVehicleIsALineAndAnEmptySlotOneToo) {
  BackupRig rig;
  rig.live.Write("CarMnt1.Fil", std::string(300, 'v'));
  rig.live.Write("ACar2.Fil", "\"NEWW\"\r\n\" \"\r\n\"DXEnd\"\r\n");
  rig.live.Write("MCar2.Fil", "");
  ASSERT_EQ(rig.BackUp(26), BackupEnd::kComplete);
  EXPECT_EQ(rig.disk(1).Read("Acar.Ab1"), "\"DXEnd\3\"\r\n\"NEWW\3 \3DXEnd\3DXEnd\3\"\r\n");
  for (const char* empty : {"Mcar.Ab1", "Rcar.Ab1", "Gcar.Ab1"}) {
    EXPECT_EQ(rig.disk(1).Read(empty), "\"DXEnd\3\"\r\n\"DXEnd\3\"\r\n") << empty;
  }
  EXPECT_EQ(rig.disk(1).Read("DiskInfo.Abk").substr(120, 3), std::string("\x01\0002", 3));
  rig.Wipe();
  ASSERT_EQ(rig.Restore(27), RestoreEnd::kComplete);
  EXPECT_THAT(rig.live.Names(), ElementsAre("ACar2.Fil", "CarMnt1.Fil"));
  EXPECT_EQ(rig.live.Read("ACar2.Fil"), "\"NEWW\"\r\n\"\"\r\n\"DXEnd\"\r\n");
}

TEST(BackupLayoutTest, EveryFileHasTheNameThatTheSetGivesIt) {
  struct Case {
    int mode;
    std::vector<std::string> names;
  };
  const Case cases[] = {
      {0,
       {"ANN (7).Hb2",
        "Ann.Hb2",
        "Ann.Hb3",
        "ArchiveHold.Hb3",
        "Bob - 1.Hb2",
        "DRPln1.hb1",
        "DiscpHold.Hb2",
        "DiskInfo.bk1",
        "EmployAction1.hb1",
        "EmployComment0.hb1",
        "EmployPolicy46.hb1",
        "EmployWksht20.hb1",
        "EvalHold.Hb2",
        "Gcolor3.hb1",
        "Hinv3.hb1",
        "JobHold.Hb2",
        "RAList.hb1",
        "Stat1.hb1",
        "ToDoActv.hb1",
        "ToDoName.hb1",
        "ann (6).Hb2"}},
      {2, {"DiskInfo.hm1", "Name1.hm1", "Name2.Fil", "Name3.Fil"}},
      {26, {"Acar.Ab1", "CarMnt1.Ab1", "DiskInfo.Abk", "Gcar.Ab1", "Mcar.Ab1", "Rcar.Ab1"}},
      {32, {" 2026.Bb1", "Disk1.Bbk"}},
      {36, {"2026.Bup"}},
      {38, {"ADDBK2.Fil", "Addbk1.ZZ1", "Addbk3.ZZ1", "DiskInfo.ZZ1"}},
      {40, {"DiskInfo.ZY1", "Photobk3.ZY1", "Photobk4.Fil"}},
      {44, {"2026.Sp1", "2026.Sp2"}},
      {46, {"2026.Vp1", "2026.Vp2"}},
  };
  for (const Case& wanted : cases) {
    BackupRig rig;
    rig.FillCompany();
    ASSERT_EQ(rig.BackUp(wanted.mode), BackupEnd::kComplete) << wanted.mode;
    EXPECT_EQ(rig.disk(1).Names(), wanted.names) << wanted.mode;
  }
}

}  // namespace
}  // namespace tarnwell::backup
