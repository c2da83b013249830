#include "planner/recurrence_input.h"

#include <gtest/gtest.h>

namespace tarnwell::planner {
namespace {

TEST(RecurrenceInput, ANumberBoxKeepsWhatItAllows) {
  struct {
    NumberBox box;
    const char* typed;
    const char* kept;
  } const cases[] = {
      {NumberBox::kDays, "", "1"},           {NumberBox::kDays, "a", "1"},
      {NumberBox::kDays, "-", "1"},          {NumberBox::kDays, ".", "1"},
      {NumberBox::kDays, "+", "+"},          {NumberBox::kDays, "1+", "1"},
      {NumberBox::kDays, ",", ","},          {NumberBox::kDays, "4/", "4/"},
      {NumberBox::kDays, "4-", "4"},         {NumberBox::kDays, "-4", "4"},
      {NumberBox::kDays, "0", "0"},          {NumberBox::kDays, "90", "90"},
      {NumberBox::kDays, "91", "90"},        {NumberBox::kWeeks, "53", "52"},
      {NumberBox::kDayOfMonth, "32", "31"},  {NumberBox::kMonths, "13", "12"},
      {NumberBox::kDay, "99", "31"},         {NumberBox::kYears, "11", "10"},
      {NumberBox::kOccurrences, "99", "90"},
  };
  for (const auto& c : cases) EXPECT_EQ(AcceptNumber(c.box, c.typed), c.kept) << c.typed;
  EXPECT_EQ(NumberIn("4/"), 4);
  EXPECT_EQ(NumberIn("+"), 0);
}

TEST(RecurrenceInput, OccurrencesFitIntoTenYears) {
  struct {
    RecurrenceMode mode;
    int interval;
    int occurrences;
    int fitting;
  } const cases[] = {
      {RecurrenceMode::kDaily, 90, 90, 40},    {RecurrenceMode::kDaily, 40, 90, 90},
      {RecurrenceMode::kDaily, 41, 90, 89},    {RecurrenceMode::kDaily, 0, 90, 90},
      {RecurrenceMode::kWeekdays, 90, 90, 90}, {RecurrenceMode::kWeekly, 52, 11, 10},
      {RecurrenceMode::kMonthly, 12, 10, 10},  {RecurrenceMode::kMonthly, 12, 11, 10},
      {RecurrenceMode::kYearly, 10, 2, 1},     {RecurrenceMode::kYearly, 1, 90, 10},
      {RecurrenceMode::kNone, 90, 90, 90},
  };
  for (const auto& c : cases) {
    RecurrenceRequest request;
    request.mode = c.mode;
    request.every_days = request.every_weeks = c.interval;
    request.every_months = request.every_years = c.interval;
    request.occurrences = c.occurrences;
    EXPECT_EQ(OccurrencesWithinTenYears(request), c.fitting) << c.interval;
  }
}

TEST(RecurrenceInput, DatesKeepTheirDistanceFromToday) {
  const text::Date today = text::MakeDate(2026, 3, 9);
  EXPECT_EQ(LatestEndDate(today), text::MakeDate(2036, 3, 10));
  EXPECT_FALSE(IsTooLongAgo(text::MakeDate(2026, 2, 7), today));
  EXPECT_TRUE(IsTooLongAgo(text::MakeDate(2026, 2, 6), today));
  EXPECT_EQ(DefaultEndDate(today), text::MakeDate(2031, 3, 9));
}

}  // namespace
}  // namespace tarnwell::planner
