#include "budget/budget_year.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "storage/file_system.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::budget {
namespace {

using ::testing::Each;
using testing::FileOf;
using testing::ReadFormatExample;

class BudgetYearTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

std::string Lines(int count, const std::string& line) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += line;
  return lines;
}

TEST_F(BudgetYearTest, TheFileHas500RowsAndTheIncomeBehindThem) {
  BudgetYear budget = ReadBudgetYear(folder_, 2026);
  EXPECT_THAT(budget.income, Each("0.00"));
  budget.rows[0][0] = "Rent";
  budget.rows[0][1] = "1200.00";
  budget.rows[0][2] = ".50";
  budget.rows[499][12] = "9.00";
  budget.income[11] = "99999.99";
  budget.rest = {"more"};
  ASSERT_TRUE(WriteBudgetYear(folder_, 2026, budget));
  EXPECT_TRUE(disk_.Read("2026.Fil") ==
              FileOf(ReadFormatExample("budget-year.md")) + Lines(6500 - 4, "\"\"\r\n") +
                  "\"9.00\"\r\n" + Lines(11, "\"0.00\"\r\n") + "\"99999.99\"\r\n\"more\"\r\n");
  const BudgetYear again = ReadBudgetYear(folder_, 2026);
  EXPECT_EQ(again.rows, budget.rows);
  EXPECT_EQ(again.rest, budget.rest);
}

TEST_F(BudgetYearTest, ACutFileGivesWhatItHolds) {
  const std::string whole = FileOf(ReadFormatExample("budget-year.md"));
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    disk_.Write("2026.Fil", whole.substr(0, length));
    const BudgetYear cut = ReadBudgetYear(folder_, 2026);
    ASSERT_EQ(cut.rows.size(), 500U);
    EXPECT_EQ(cut.rows[0][0], length < 2 ? "" : std::string("Rent").substr(0, length - 1));
    EXPECT_THAT(cut.rows[499], Each(""));
    EXPECT_THAT(cut.income, Each("0.00"));
  }
  disk_.Write("2026.Fil", Lines(6511, "\"" + std::string(300, 'x') + "\"\r\n"));
  const BudgetYear strange = ReadBudgetYear(folder_, 2026);
  EXPECT_EQ(strange.rows[499][12], std::string(300, 'x'));
  EXPECT_EQ(strange.income[10], "0");
  EXPECT_EQ(strange.income[11], "0.00");
  std::filesystem::create_directory(disk_.path() + "/2027.Fil");
  EXPECT_EQ(ReadBudgetYear(folder_, 2027).fault, storage::Fault::kNotPlain);
}

TEST_F(BudgetYearTest, ADiskThatFillsUpLeavesTheOldYear) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  storage::ProgramFolder folder(files, disk_.path());
  BudgetYear budget = ReadBudgetYear(folder, 2026);
  budget.rows[0][0] = "Old";
  ASSERT_TRUE(WriteBudgetYear(folder, 2026, budget));
  const std::string old = disk_.Read("2026.Fil");
  budget.rows[0][0] = "New";
  for (std::uint64_t room = 0; room < old.size(); room += 997) {
    files.AllowBytes(room);
    EXPECT_FALSE(WriteBudgetYear(folder, 2026, budget)) << room;
    EXPECT_TRUE(disk_.Read("2026.Fil") == old) << room;
  }
}

}  // namespace
}  // namespace tarnwell::budget
