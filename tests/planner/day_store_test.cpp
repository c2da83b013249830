#include "planner/day_store.h"

#include <gtest/gtest.h>

#include <set>

#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::planner {
namespace {

using text::MakeDate;

class DayStoreTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder temporary;
  testing::FailingFileSystem files{storage::RealFileSystem()};
  storage::ProgramFolder folder{files, temporary.path()};
};

TEST_F(DayStoreTest, EveryDateHasARecordOfItsOwn) {
  const struct {
    unsigned month, day;
    int record;
  } cases[] = {
      {1, 1, 11},   {2, 1, 12},    {9, 1, 19},    {1, 31, 311},  {2, 29, 292}, {3, 31, 313},
      {4, 30, 304}, {5, 31, 315},  {6, 30, 306},  {7, 31, 317},  {8, 31, 318}, {9, 30, 309},
      {10, 1, 321}, {10, 31, 351}, {11, 1, 361},  {11, 30, 390}, {12, 1, 401}, {12, 31, 431},
      {3, 15, 153}, {3, 5, 53},    {10, 10, 330},
  };
  for (const auto& c : cases) EXPECT_EQ(DayRecordNumber(c.month, c.day), c.record);

  std::set<int> used;
  for (auto date = MakeDate(2024, 1, 1); text::YearOf(date) == 2024;
       date = text::AddDays(date, 1)) {
    EXPECT_TRUE(used.insert(DayRecordNumber(text::MonthOf(date), text::DayOf(date))).second);
  }
  EXPECT_EQ(used.size(), 366u);
}

TEST_F(DayStoreTest, ADayLiesAtItsOffsetsAndEndsWithItsMarker) {
  DayRows rows;
  rows[0] = {"9:30 AM", "Dentist"};
  rows[1] = {"10:00 AM and more", std::string(60, 'e')};
  rows[13] = {"", "Last row"};
  ASSERT_TRUE(WriteDay(folder, MakeDate(2026, 1, 1), rows));

  std::string record = "9:30 AM   10:00 AM a" + std::string(120, ' ');
  record += "Dentist" + std::string(43, ' ') + std::string(50, 'e') + std::string(550, ' ');
  record += "Last row" + std::string(42, ' ') + "Full      ";
  ASSERT_EQ(record.size(), 850u);
  EXPECT_EQ(temporary.Read(" 2026.Cal"), std::string(10 * 900, '\0') + record);
  EXPECT_EQ(ReadDay(folder, MakeDate(2026, 1, 1))->rows[13], rows[13]);
}

TEST_F(DayStoreTest, WithoutItsMarkerADayIsBlankWhateverItsBytesHold) {
  for (const char* marker : {"full      ", "Fully     ", " Full     ", "          "}) {
    temporary.Write(" 2026.Cal", std::string(10 * 900, '\0') + std::string(840, 'x') + marker);
    const auto day = ReadDay(folder, MakeDate(2026, 1, 1));
    ASSERT_TRUE(day);
    EXPECT_FALSE(day->saved) << marker;
    EXPECT_EQ(day->rows, DayRows{});
  }
}

TEST_F(DayStoreTest, LookingAtAYearMakesItsEmptyFile) {
  EXPECT_FALSE(ReadDay(folder, MakeDate(1999, 12, 31))->saved);
  EXPECT_TRUE(folder.Exists(" 1999.cal"));
  EXPECT_EQ(folder.Length(" 1999.Cal"), 0u);
}

TEST_F(DayStoreTest, ADayThatCantBeReadIsNotAnEmptyOne) {
  ASSERT_TRUE(WriteDay(folder, MakeDate(2026, 1, 1), {}));
  files.FailWhen([this](int) { return files.log().back() == "read"; });
  EXPECT_FALSE(ReadDay(folder, MakeDate(2026, 1, 1)));
  files.Vanish();
  EXPECT_FALSE(ReadDay(folder, MakeDate(2026, 1, 1)));
}

TEST_F(DayStoreTest, AWriteThatFailsSaysSo) {
  files.AllowBytes(100);
  EXPECT_FALSE(WriteDay(folder, MakeDate(2026, 1, 1), {}));
  files.Recover();
  EXPECT_FALSE(ReadDay(folder, MakeDate(2026, 1, 1))->saved);
}

}  // namespace
}  // namespace tarnwell::planner
