#include "desktop/widgets/month_sheet.h"

#include <gtest/gtest.h>

namespace tarnwell::desktop {
namespace {

constexpr unsigned kSunday = 0;
constexpr unsigned kMonday = 1;

TEST(MonthSheet, StartsWithTheWeekThatHoldsTheFirstDay) {
  const struct {
    int year;
    unsigned month;
    unsigned first_weekday;
    text::Date first;
  } cases[] = {
      {2026, 2, kSunday, text::MakeDate(2026, 2, 1)},  // February starts on the first weekday
      {2026, 2, kMonday, text::MakeDate(2026, 1, 26)},
      {2026, 3, kSunday, text::MakeDate(2026, 3, 1)},
      {2026, 8, kSunday, text::MakeDate(2026, 7, 26)},  // six weeks
      {2026, 1, 6, text::MakeDate(2025, 12, 27)},       // Saturday first
  };
  for (const auto& one : cases) {
    const Month month{std::chrono::year{one.year}, std::chrono::month{one.month}};
    const auto days = DaysOfSheet(month, one.first_weekday);
    EXPECT_EQ(days.front(), one.first);
    EXPECT_EQ(days.back(), text::AddDays(one.first, 41));
  }
}

TEST(MonthSheet, WeekOneHoldsNewYearsDay) {
  EXPECT_EQ(WeekNumber(text::MakeDate(2026, 1, 1), kSunday), 1);
  EXPECT_EQ(WeekNumber(text::MakeDate(2026, 1, 3), kSunday), 1);
  EXPECT_EQ(WeekNumber(text::MakeDate(2026, 1, 4), kSunday), 2);
  EXPECT_EQ(WeekNumber(text::MakeDate(2026, 1, 4), kMonday), 1);
  EXPECT_EQ(WeekNumber(text::MakeDate(2025, 12, 28), kSunday), 1);
  EXPECT_EQ(WeekNumber(text::MakeDate(2025, 12, 27), kSunday), 52);
  EXPECT_EQ(WeekNumber(text::MakeDate(2026, 3, 9), kSunday), 11);
}

TEST(MonthSheet, AWeekThatBeginsOnMondayIsCountedAsIsoCounts) {
  const struct {
    text::Date date;
    int week;
  } cases[] = {
      {text::MakeDate(2027, 1, 1), 53},   {text::MakeDate(2027, 1, 3), 53},
      {text::MakeDate(2027, 1, 4), 1},    {text::MakeDate(2024, 12, 30), 1},
      {text::MakeDate(2023, 1, 1), 52},   {text::MakeDate(2026, 3, 9), 11},
      {text::MakeDate(2020, 12, 31), 53},
  };
  for (const auto& one : cases) EXPECT_EQ(WeekNumber(one.date, kMonday), one.week);
}

}  // namespace
}  // namespace tarnwell::desktop
