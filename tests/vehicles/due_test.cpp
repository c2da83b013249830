#include "vehicles/due.h"

#include <gtest/gtest.h>

#include "vehicles/cell_values.h"
#include "vehicles/standard_actions.h"

namespace tarnwell::vehicles {
namespace {

using text::MakeDate;

ScheduleRow Row(const char* action, const char* distance, const char* months, const char* odometer,
                const char* date) {
  return {action, distance, months, odometer, {date, ""}, ""};
}

TEST(DueTest, DistanceAndTimeRunOutEachByItself) {
  const text::Date today = MakeDate(2026, 3, 9);
  const struct {
    const char* what;
    ScheduleRow row;
    const char* odometer;
    const char* distance;
    const char* time;
    bool by_distance;
    bool by_time;
  } cases[] = {
      {"500 left", Row("Oil", "3,000", "", "10,000", ""), "12,500", "500", "", false, false},
      {"none left", Row("Oil", "3,000", "", "10,000", ""), "13,000", "", "", true, false},
      {"over", Row("Oil", "3,000", "", "10,000", ""), "14,204", "-1,204", "", true, false},
      {"with its unit", Row("Oil", "3,000 mi", "", "10,000", ""), "12,000 mi", "1,000", "", false,
       false},
      {"decimals", Row("Oil", "2,999.6", "", "10,000.4", ""), "12,500.4", "500", "", false, false},
      {"the largest", Row("Oil", "1", "", "9,999,999", ""), "9,999,999", "1", "", false, false},
      {"a negative odometer", Row("Oil", "100", "", "", ""), "-50", "150", "", false, false},
      {"no odometer", Row("Oil", "100", "", "", ""), "", "100", "", false, false},
      {"no interval", Row("Oil", "0", "", "10,000", ""), "50,000", "", "", false, false},
      {"tomorrow", Row("Oil", "", "3", "", "12/10/2025"), "", "", "1 day", false, false},
      {"today", Row("Oil", "", "3", "", "12/9/2025"), "", "", "0 days", false, true},
      {"yesterday", Row("Oil", "", "3", "", "12/8/2025"), "", "", "-1 days", false, true},
      {"next month", Row("Oil", "", "1", "", "3/31/2026"), "", "", "52 days", false, false},
      {"12 days over", Row("Oil", "", "3", "", "11/25/2025"), "", "", "-12 days", false, true},
      {"two months", Row("Oil", "", "2", "", "3/1/2026"), "", "", "2 mos.", false, false},
      {"5 months over", Row("Oil", "", "3", "", "7/31/2025"), "", "", "-5 mos.", false, true},
      {"both", Row("Oil", "3,000", "3", "10,000", "12/1/2025"), "13,100", "-100", "-8 days", true,
       true},
      {"months 0", Row("Oil", "3,000", "0", "10,000", "12/1/2025"), "10,000", "3,000", "", false,
       false},
      {"no date", Row("Oil", "", "3", "", "soon"), "", "", "", false, false},
      {"half a month", Row("Oil", "", ".5", "", "3/1/2026"), "", "", "23 days", false, false},
      {"a month and a half", Row("Oil", "", "1.5", "", "3/1/2026"), "", "", "2 mos.", false, false},
      {"years", Row("Oil", "", "12", "", "1/1/1899"), "", "", "-1514 mos.", false, true},
      {"no action", Row(" ", "3,000", "3", "10,000", "12/1/2020"), "50,000", "", "", false, false},
  };
  for (const auto& c : cases) {
    const Due due = DueOf(TimesOf(c.row), WholeNumber(c.odometer), today);
    EXPECT_EQ(DistanceLeftText(due), c.distance) << c.what;
    EXPECT_EQ(TimeLeftText(due), c.time) << c.what;
    EXPECT_EQ(due.by_distance, c.by_distance) << c.what;
    EXPECT_EQ(due.by_time, c.by_time) << c.what;
  }
}

TEST(DueTest, MonthsAreThoseOfTheCalendar) {
  const struct {
    text::Date date;
    double months;
    text::Date later;
  } cases[] = {
      {MakeDate(2024, 2, 29), 12, MakeDate(2025, 2, 28)},
      {MakeDate(2024, 2, 29), 48, MakeDate(2028, 2, 29)},
      {MakeDate(2025, 11, 30), 3, MakeDate(2026, 2, 28)},
      {MakeDate(1899, 12, 31), 2, MakeDate(1900, 2, 28)},
      {MakeDate(2099, 12, 31), 2, MakeDate(2100, 2, 28)},
      {MakeDate(2026, 1, 15), .3, MakeDate(2026, 2, 15)},
  };
  for (const auto& c : cases) EXPECT_EQ(MonthsLater(c.date, c.months), c.later);
  EXPECT_TRUE(MonthsLater(MakeDate(9999, 12, 31), 1e300).ok());
}

TEST(DueTest, NearIsWhatIsDueSoonInDaysOrDistance) {
  const text::Date today = MakeDate(2026, 3, 9);
  // Due on 3/24 and 4/8, that is in 15 and 30 days; on 3/25; after 250, 251 and 1,204.
  const ScheduleRow days15 = Row("Oil", "", "1", "", "2/24/2026");
  const ScheduleRow days16 = Row("Oil", "", "1", "", "2/25/2026");
  const ScheduleRow days30 = Row("Oil", "", "1", "", "3/8/2026");
  const ScheduleRow left250 = Row("Oil", "3,000", "", "10,250", "");
  const ScheduleRow left251 = Row("Oil", "3,000", "", "10,251", "");
  const ScheduleRow left1204 = Row("Oil", "3,000", "", "11,204", "");
  const ScheduleRow months = Row("Oil", "", "3", "", "2/28/2026");
  const struct {
    const char* what;
    ScheduleRow row;
    Nearness wanted;
    bool is_near;
  } cases[] = {
      {"15 of 15 days", days15, {.in_15_days = true}, true},
      {"16 of 15 days", days16, {.in_15_days = true}, false},
      {"16 of 30 days", days16, {.in_30_days = true}, true},
      {"30 of 30 days", days30, {.in_30_days = true}, true},
      {"nothing wanted", days15, {}, false},
      {"2 months aren't 2 days", months, {.in_15_days = true, .in_30_days = true}, false},
      {"250 of 250", left250, {.in_250 = true}, true},
      {"251 of 250", left251, {.in_250 = true}, false},
      {"251 of 500", left251, {.in_500 = true}, true},
      {"1,204 isn't 1", left1204, {.in_250 = true, .in_500 = true}, false},
      {"due already", Row("Oil", "10", "", "", ""), {}, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(AnyIsNear(std::span(&c.row, 1), 13000, today, c.wanted), c.is_near) << c.what;
  }
}

TEST(DueTest, TheRegistrationMonthIsANumberOrAName) {
  const text::Date march = MakeDate(2026, 3, 9);
  for (const char* month : {"3", "03", "3rd", "Mar", "march", "MARCH 31", " 3 "}) {
    EXPECT_TRUE(RegistrationIsDue(month, march)) << month;
  }
  for (const char* month : {"", "4", "33", "Ma", "May"}) {
    EXPECT_FALSE(RegistrationIsDue(month, march)) << month;
  }
  EXPECT_TRUE(RegistrationIsDue("11", MakeDate(2026, 11, 23)));
}

TEST(CellValuesTest, NumbersAreReadAsTheyAreShown) {
  const struct {
    const char* cell;
    double number;
  } cases[] = {{"12,000 mi", 12000},
               {"$1,234.50", 1234.5},
               {"($5.00)", -5},
               {"       10,000", 10000},
               {"9,999,999", 9999999},
               {"-12", -12},
               {"1,x", 1},
               {"x", 0},
               {"", 0},
               {",5", 0},
               {"$.50  ", .5}};
  for (const auto& c : cases) EXPECT_EQ(NumberIn(c.cell), c.number) << c.cell;
  EXPECT_EQ(WholeText("12499.6"), "12,500");
  EXPECT_EQ(WholeText("0"), "");
  EXPECT_EQ(CostText(1234.5), "$1,234.50");
}

TEST(StandardActionsTest, TheirNamesInAHistoryAreInThePast) {
  EXPECT_EQ(PastAction("Replace Coolant"), "Replaced Engine Coolant");
  EXPECT_EQ(PastAction("Inspect Brake Linings"), "Inspected or Replaced Brake Linings");
  EXPECT_EQ(PastAction("Wash"), "Wash");
}

}  // namespace
}  // namespace tarnwell::vehicles
