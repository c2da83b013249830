#include "leave/leave_year.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>

#include "leave/leave_balance.h"
#include "storage/file_names.h"
#include "storage/file_system.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::leave {
namespace {

using year_sheet::Row;
using year_sheet::Rows;

constexpr LeaveFiles kSickLeaveFiles{storage::file_names::SickLeave,
                                     storage::file_names::SickLeaveRows};

Row AnnLee() {
  return {"Ann Lee", ".50", "", "", "",     "",     "",      "",
          "",        "",    "", "", "2.00", "2.50", "15.00", "12.50"};
}

Rows FiftyWith(const Row& first) {
  Rows rows(kLeastRows, Row(16));
  rows[0] = first;
  return rows;
}

std::string Blank(int rows) {
  std::string blank;
  for (int i = 0; i < rows * 16; ++i) blank += "\"\"\r\n";
  return blank;
}

class LeaveYearTest : public ::testing::Test {
 protected:
  LeaveYear Read(int year = 2026) { return ReadLeaveYear(folder_, kSickLeaveFiles, year); }

  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

TEST_F(LeaveYearTest, AYearLiesOnTheDiskAsItsPageSays) {
  ASSERT_TRUE(WriteLeaveYear(folder_, kSickLeaveFiles, 2026, FiftyWith(AnnLee())));
  const std::string row = testing::FileOf(testing::ReadFormatExample("leave-year.md"));
  ASSERT_EQ(row.size(), 92u);
  EXPECT_EQ(disk_.Read("2026.Sl1"), row + Blank(49));
  EXPECT_EQ(disk_.Read("2026.Sl2"), "\"51\"\r\n");
  EXPECT_EQ(Read().rows, FiftyWith(AnnLee()));
}

TEST_F(LeaveYearTest, CountsOfRowsAreHeldToWhatASheetTakes) {
  for (const auto& [count, rows] : {std::pair{"0", 50},
                                    {"51", 50},
                                    {"52", 51},
                                    {"\"52\"", 51},
                                    {"9002", 9001},
                                    {"1000000", 9001},
                                    {"-3", 50},
                                    {"many", 50},
                                    {"", 50}}) {
    disk_.Write("2026.Sl2", count);
    EXPECT_EQ(Read().rows.size(), static_cast<std::size_t>(rows)) << count;
  }
}

TEST_F(LeaveYearTest, AShortSheetIsBlankBehindItsEnd) {
  ASSERT_TRUE(WriteLeaveYear(folder_, kSickLeaveFiles, 2026, FiftyWith(AnnLee())));
  const std::string whole = disk_.Read("2026.Sl1");
  for (std::size_t length = 0; length <= 92; ++length) {
    disk_.Write("2026.Sl1", whole.substr(0, length));
    const LeaveYear cut = Read();
    ASSERT_EQ(cut.rows.size(), 50u);
    ASSERT_EQ(cut.rows[1], Row(16)) << length;
  }
}

TEST_F(LeaveYearTest, ARefusedSaveLeavesTheOldYear) {
  ASSERT_TRUE(WriteLeaveYear(folder_, kSickLeaveFiles, 2026, FiftyWith(AnnLee())));
  const std::string before = disk_.Read("2026.Sl1");
  Row other = AnnLee();
  other[1] = "9.00";
  for (const std::uint64_t bytes : {0, 1, 91, 500}) {
    testing::FailingFileSystem files(storage::RealFileSystem());
    storage::ProgramFolder folder(files, disk_.path());
    files.AllowBytes(bytes);
    EXPECT_FALSE(WriteLeaveYear(folder, kSickLeaveFiles, 2026, FiftyWith(other))) << bytes;
    EXPECT_EQ(disk_.Read("2026.Sl1"), before) << bytes;
  }
}

TEST_F(LeaveYearTest, NoMomentOfASaveHasRowsThatArentRead) {
  const auto with_rows = [](int rows) { return Rows(static_cast<std::size_t>(rows), AnnLee()); };
  testing::FailingFileSystem files{storage::RealFileSystem()};
  storage::ProgramFolder failing(files, disk_.path());
  for (const auto& [from, to] : {std::pair{50, 52}, {52, 50}}) {
    bool is_saved = false;
    for (int call = 1; !is_saved; ++call) {
      ASSERT_LT(call, 200);
      disk_.Remove("2026.Sl1");
      disk_.Remove("2026.Sl2");
      ASSERT_TRUE(WriteLeaveYear(folder_, kSickLeaveFiles, 2026, with_rows(from)));
      const std::string before = disk_.Read("2026.Sl1");
      files.FailFrom(files.calls() + call);
      is_saved = static_cast<bool>(WriteLeaveYear(failing, kSickLeaveFiles, 2026, with_rows(to)));
      files.Recover();
      const int rows = disk_.Read("2026.Sl1") == before ? from : to;
      const Rows read = Read().rows;
      EXPECT_GE(read.size(), static_cast<std::size_t>(rows)) << call;
      EXPECT_EQ(std::ranges::count(read, AnnLee()), rows) << call;
    }
  }
}

TEST_F(LeaveYearTest, TheNextYearBeginsWithNamesAndDaysAuthorised) {
  disk_.Write("2027.Sl1", "old");
  Rows sixty(60, Row(16));
  sixty[0] = sixty[59] = AnnLee();
  ASSERT_TRUE(WriteNamesOfNextYear(folder_, kSickLeaveFiles, 2026, sixty));
  EXPECT_EQ(disk_.Read("2026.Sl2"), "\"61\"\r\n");
  EXPECT_FALSE(folder_.Exists("2027.Sl2"));
  std::string ann = "\"Ann Lee\"\r\n";
  for (int i = 0; i < 13; ++i) ann += "\"\"\r\n";
  ann += "\"15.00\"\r\n\"\"\r\n";
  EXPECT_EQ(disk_.Read("2027.Sl1"), ann + Blank(58) + ann + Blank(1));
  EXPECT_EQ(Read(2027).rows.size(), 50u);  // the next year isn't counted
  // Again: what a person had is still there.
  ASSERT_TRUE(WriteNamesOfNextYear(folder_, kSickLeaveFiles, 2026, FiftyWith({})));
  EXPECT_EQ(disk_.Read("2027.Sl1.old"), "old");
}

TEST(LeaveBalanceTest, UsedAndBalanceAreThoseOfAPencil) {
  const struct {
    const char* what;
    const char* name;
    std::array<std::string, 12> months;
    const char* authorized;
    std::optional<std::string> used;
    std::optional<std::string> balance;
  } cases[] = {
      {"some days", "Ann", {"1.50", "", ".25"}, "10.00", "1.75", "8.25"},
      {"more than authorised", "Ann", {"12.50"}, "10.00", "12.50", "-2.50"},
      {"exactly all", "Ann", {"4.00", "6.00"}, "10.00", "10.00", ".00"},
      {"tenths, in single precision", "Ann", {".10", ".20", ".30"}, "1.00", ".60", ".40"},
      {"no days", "Ann", {}, "10.00", {}, {}},
      {"nothing authorised", "Ann", {"1.00"}, " ", "1.00", {}},
      {"no name", "  ", {"1.00"}, "10.00", {}, {}},
      {"too many", "Ann", {"999.99", ".01"}, "10.00", "999.99", "-989.99"},
      {"as many as fit", "Ann", {"999.98"}, "999.99", "999.98", ".01"},
      {"no numbers", "Ann", {"ill", "2 days"}, "x", "2.00", "-2.00"},
      {"below zero", "Ann", {"-5.00", "2.00"}, "10.00", {}, {}},
  };
  for (const auto& c : cases) {
    const LeaveBalance computed = ComputeBalance(c.name, c.months, c.authorized);
    EXPECT_EQ(computed.used, c.used) << c.what;
    EXPECT_EQ(computed.balance, c.balance) << c.what;
  }
}

}  // namespace
}  // namespace tarnwell::leave
