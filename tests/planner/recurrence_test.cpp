#include "planner/recurrence.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "planner/recurrence_input.h"
#include "text/date_mask.h"
#include "text/date_reading.h"

namespace tarnwell::planner {
namespace {

using ::testing::ElementsAre;

constexpr unsigned kMonday = 1;
constexpr unsigned kTuesday = 2;
constexpr unsigned kWednesday = 3;

text::Date On(const char* date) { return text::ReadDate(date).value_or(text::Date{}); }

std::vector<std::string> DatesEntered(const RecurrenceRequest& request) {
  std::vector<std::string> dates;
  RecurrenceWalk walk(request);
  while (const auto candidate = walk.Next()) {
    if (candidate->applies) dates.push_back(text::FormatDate(candidate->date, "mm/dd/yy"));
  }
  return dates;
}

using Mode = RecurrenceMode;

struct Rule {
  Mode mode;
  int every = 1;  // days, weeks, months or years
  unsigned weekday = kMonday;
  unsigned day = 9;
  unsigned month = 3;
};

RecurrenceRequest From(const char* beginning, const Rule& rule) {
  RecurrenceRequest request;
  request.mode = rule.mode;
  request.every_days = request.every_weeks = rule.every;
  request.every_months = request.every_years = rule.every;
  request.weekday = rule.weekday;
  request.day_of_month = request.day = rule.day;
  request.month = rule.month;
  request.beginning = On(beginning);
  return request;
}

RecurrenceRequest After(int occurrences, const Rule& rule, const char* beginning = "3/9/2026") {
  RecurrenceRequest request = From(beginning, rule);
  request.end_kind = EndKind::kEndDateAfter;
  request.occurrences = occurrences;
  return request;
}

RecurrenceRequest Until(const char* end, const Rule& rule, const char* beginning = "3/9/2026") {
  RecurrenceRequest request = From(beginning, rule);
  request.end_kind = EndKind::kEndDate;
  request.end = On(end);
  return request;
}

struct Case {
  const char* what;
  RecurrenceRequest request;
  std::vector<std::string> dates;
};

void Check(const std::vector<Case>& cases) {
  for (const Case& c : cases) EXPECT_EQ(DatesEntered(c.request), c.dates) << c.what;
}

constexpr Rule kDaily{Mode::kDaily};
constexpr Rule kWeekdays{Mode::kWeekdays};
constexpr Rule kChristmas{.mode = Mode::kYearly, .day = 25, .month = 12};

constexpr Rule LeapDay(int every) {
  return {.mode = Mode::kYearly, .every = every, .day = 29, .month = 2};
}

// March 9, 2026 is a Monday.

TEST(RecurrenceWalk, CountedDaysBeginBehindTheBeginningDate) {
  Check({
      {"daily", After(3, kDaily), {"03/10/26", "03/11/26", "03/12/26"}},
      {"every 0 days is daily", After(2, {Mode::kDaily, 0}), {"03/10/26", "03/11/26"}},
      {"every 10", After(3, {Mode::kDaily, 10}), {"03/19/26", "03/29/26", "04/08/26"}},
      {"Thursday", After(3, kWeekdays, "3/12/2026"), {"03/13/26", "03/16/26", "03/17/26"}},
      {"one from a Friday looks at the weekend only", After(1, kWeekdays, "3/13/2026"), {}},
      {"nothing for 0 occurrences", After(0, kDaily), {}},
      {"nothing without a rule", After(3, {Mode::kNone}), {}},
      {"nothing by the hidden rule", After(3, {Mode::kHidden}), {}},
  });
}

TEST(RecurrenceWalk, CountedWeeksFromTwoOnMeetOnlyTheBeginningsWeekday) {
  Check({
      {"each Monday", After(2, {Mode::kWeekly}), {"03/16/26", "03/23/26"}},
      {"each Wednesday", After(2, {Mode::kWeekly, 1, kWednesday}), {"03/11/26", "03/18/26"}},
      {"fortnightly", After(3, {Mode::kWeekly, 2}), {"03/23/26", "04/06/26", "04/20/26"}},
      {"fortnightly on a Tuesday", After(3, {Mode::kWeekly, 2, kTuesday}), {}},
      {"every 0 weeks", After(3, {Mode::kWeekly, 0}), {}},
  });
}

TEST(RecurrenceWalk, CountedMonthsPassOverMonthsWithoutTheDay) {
  Check({
      {"each month", After(2, {Mode::kMonthly}), {"04/09/26", "05/09/26"}},
      {"the 31st, until the walk's last day, June 10",
       After(3, {.mode = Mode::kMonthly, .day = 31}),
       {"03/31/26", "05/31/26"}},
      {"every second begins one month on", After(2, {Mode::kMonthly, 2}), {"04/09/26", "06/09/26"}},
      {"every third, a day later than the beginning's",
       After(2, {.mode = Mode::kMonthly, .every = 3, .day = 10}),
       {"05/10/26", "08/10/26"}},
      {"every 0 months", After(2, {Mode::kMonthly, 0}), {}},
  });
}

TEST(RecurrenceWalk, CountedYearsBeginBehindTheBeginningsYear) {
  Check({
      {"each March 9", After(2, {Mode::kYearly}), {"03/09/27", "03/09/28"}},
      {"not this year, and the second is out of reach", After(2, kChristmas), {"12/25/27"}},
      {"the only one is out of reach", After(1, kChristmas), {}},
      {"every second year", After(2, {Mode::kYearly, 2}), {"03/09/28", "03/09/30"}},
      {"2025 has no leap day, and the walk stays with it", After(3, LeapDay(1), "2/29/2024"), {}},
      {"every fourth", After(2, LeapDay(4), "2/29/2024"), {"02/29/28", "02/29/32"}},
  });
}

TEST(RecurrenceWalk, DatedDaysBeginWithTheBeginningDate) {
  Check({
      {"the End Date included",
       Until("3/12/2026", kDaily),
       {"03/09/26", "03/10/26", "03/11/26", "03/12/26"}},
      {"every 5 days runs past the End Date",
       Until("3/20/2026", {Mode::kDaily, 5}),
       {"03/09/26", "03/14/26", "03/19/26", "03/24/26"}},
      {"over New Year", Until("1/1/2027", kDaily, "12/31/2026"), {"12/31/26", "01/01/27"}},
      {"weekdays", Until("3/16/2026", kWeekdays, "3/13/2026"), {"03/13/26", "03/16/26"}},
      {"to the same date", Until("3/9/2026", kDaily), {}},
      {"to a date before", Until("3/1/2026", kDaily), {}},
      {"to a later day of an earlier month", Until("2/20/2026", kDaily), {}},
      {"to a later month of an earlier year", Until("12/20/2025", kDaily), {}},
      {"to no date", Until("", kDaily), {}},
      {"from no date", Until("3/12/2026", kDaily, ""), {}},
      {"nothing by the hidden rule", Until("3/12/2026", {Mode::kHidden}), {}},
  });
}

TEST(RecurrenceWalk, DatedWeeksFindAnyWeekdayAndLeaveOutTheEndDate) {
  Check({
      {"each Monday", Until("3/23/2026", {Mode::kWeekly}), {"03/09/26", "03/16/26"}},
      {"every second Wednesday",
       Until("4/10/2026", {Mode::kWeekly, 2, kWednesday}),
       {"03/11/26", "03/25/26", "04/08/26"}},
  });
}

TEST(RecurrenceWalk, DatedMonthsAndYearsLookOnAfterTheLastDateTried) {
  Check({
      {"the End Date included",
       Until("5/9/2026", {Mode::kMonthly}),
       {"03/09/26", "04/09/26", "05/09/26"}},
      {"the 31st",
       Until("5/31/2026", {.mode = Mode::kMonthly, .day = 31}, "1/31/2026"),
       {"01/31/26", "03/31/26", "05/31/26"}},
      {"28 days behind February 9 is March 9, past the End Date",
       Until("2/20/2026", {Mode::kMonthly}, "2/9/2026"),
       {"02/09/26", "03/09/26"}},
      {"every second begins one month on",
       Until("8/1/2026", {Mode::kMonthly, 2}),
       {"04/09/26", "06/09/26"}},
      {"each year but the first", Until("3/9/2028", {Mode::kYearly}), {"03/09/27", "03/09/28"}},
      {"every second", Until("3/10/2030", {Mode::kYearly, 2}), {"03/09/28", "03/09/30"}},
  });
}

TEST(RecurrenceWalk, AnIntervalOfNoDaysNeverLeavesTheBeginningDate) {
  const RecurrenceRequest request = Until("3/12/2026", {Mode::kDaily, 0});
  RecurrenceWalk walk(request);
  for (int i = 0; i < 10'000; ++i) {
    const auto candidate = walk.Next();
    ASSERT_TRUE(candidate && candidate->applies);
    EXPECT_EQ(candidate->date, request.beginning);
  }
}

std::vector<int> Progress(const RecurrenceRequest& request) {
  RecurrenceWalk walk(request);
  std::vector<int> progress{walk.ProgressMaximum()};
  while (walk.Next()) progress.push_back(walk.Progress());
  progress.push_back(walk.Progress());
  return progress;
}

TEST(RecurrenceWalk, ShowsItsProgress) {
  EXPECT_THAT(Progress(After(2, kDaily)), ElementsAre(2, 1, 2, 2));
  EXPECT_THAT(Progress(After(1, kWeekdays, "3/13/2026")), ElementsAre(1, 0, 0, 1));
  EXPECT_THAT(Progress(Until("3/11/2026", kDaily)), ElementsAre(2, 0, 1, 2, 2));
  // A stride that follows a use shows at once.
  EXPECT_THAT(Progress(Until("4/1/2026", {Mode::kWeekly, 2})), ElementsAre(30, 13, 27, 28, 28));
  EXPECT_EQ(RecurrenceWalk(Until("4/1/2028", kDaily)).ProgressMaximum(), 730);
}

TEST(RecurrenceWalk, NeverNamesADateTwiceAndKeepsItsBounds) {
  std::mt19937 random(7);
  const auto upto = [&](int limit) { return static_cast<int>(random() % (limit + 1u)); };
  for (int run = 0; run < 1'000; ++run) {
    RecurrenceRequest request = From("3/9/2026", {static_cast<Mode>(upto(5))});
    request.beginning = text::AddDays(request.beginning, upto(3'000));
    request.end = text::AddDays(request.beginning, upto(3'652));
    request.end_kind = run % 2 == 0 ? EndKind::kEndDate : EndKind::kEndDateAfter;
    request.every_days = 1 + upto(89);
    request.every_weeks = upto(52);
    request.every_months = upto(12);
    request.every_years = upto(10);
    request.weekday = static_cast<unsigned>(upto(6));
    request.day_of_month = static_cast<unsigned>(upto(31));
    request.month = static_cast<unsigned>(1 + upto(11));
    request.day = static_cast<unsigned>(upto(31));
    request.occurrences = upto(90);
    request.occurrences = OccurrencesWithinTenYears(request);

    const bool counted = request.end_kind == EndKind::kEndDateAfter;
    RecurrenceWalk walk(request);
    text::Date last = text::AddDays(request.beginning, counted ? 0 : -1);
    bool past_end = false;
    int used = 0;
    while (const auto candidate = walk.Next()) {
      ASSERT_LT(last, candidate->date);
      ASSERT_FALSE(past_end) << "a candidate behind one that reached the End Date";
      ASSERT_LE(walk.Progress(), walk.ProgressMaximum());
      last = candidate->date;
      past_end = !counted && last >= request.end;
      if (!candidate->applies) continue;
      ++used;
      ASSERT_LE(last, text::AddDays(counted ? request.beginning : request.end,
                                    counted ? 31 * 120 : 28 * 12));
    }
    if (counted) {
      EXPECT_LE(used, request.occurrences);
    }
  }
}

}  // namespace
}  // namespace tarnwell::planner
