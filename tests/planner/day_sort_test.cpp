#include "planner/day_sort.h"

#include <gtest/gtest.h>

#include <vector>

#include "planner/filled_day.h"

namespace tarnwell::planner {
namespace {

TEST(DaySort, PutsTheHoursOfTheDayInOrder) {
  const DayRows mixed = RowsOf({{"10:00 PM", "j"},
                                {"1:00 pm", "h"},
                                {"", ""},
                                {"12:30 PM", "g"},
                                {"9:30 PM", "i"},
                                {"11:15 AM", "f"},
                                {"", "none"},
                                {"9:30 am", "e"},
                                {"1:00 AM", "d"},
                                {" 12:00 AM ", " c "},
                                {"12:00", "b"},
                                {"11:00", "a"}});
  const std::vector<DayRow> timed = {
      {"11:00", "a"},    {"12:00", "b"},    {"12:00 AM", "c"}, {"1:00 AM", "d"}, {"9:30 am", "e"},
      {"11:15 AM", "f"}, {"12:30 PM", "g"}, {"1:00 pm", "h"},  {"9:30 PM", "i"}, {"10:00 PM", "j"}};
  std::vector<DayRow> untimed_last = timed;
  untimed_last.push_back({"", "none"});
  std::vector<DayRow> untimed_first = timed;
  untimed_first.insert(untimed_first.begin(), {"", "none"});
  EXPECT_EQ(SortDay(mixed, SortTimeOption::kFirst), RowsOf(untimed_last));
  EXPECT_EQ(SortDay(mixed, SortTimeOption::kLast), RowsOf(untimed_first));
}

TEST(DaySort, KeepsTheOdditiesOfTheKeys) {
  struct {
    DayRow row;
    SortTimeOption option;
    DayRow saved;
  } const cases[] = {
      {{"9:00", "call"}, SortTimeOption::kFirst, {"00", "call"}},
      {{"9:00", "call"}, SortTimeOption::kLast, {"9:00", "call"}},
      {{"9", "call"}, SortTimeOption::kFirst, {"", "call"}},
      {{"9:00 AM.", "call"}, SortTimeOption::kFirst, {"00 AM.", "call"}},
      {{"10zzz:00 AM", "call"}, SortTimeOption::kFirst, {"10", ":00 AMzzzcall"}},
      {{"zzz", "call"}, SortTimeOption::kFirst, {"", "zzzcall"}},
      {{"10:00 AM", ""}, SortTimeOption::kFirst, {"10:00 AM", ""}},
      {{"", "zzz"}, SortTimeOption::kFirst, {"", "zzz"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SortDay(RowsOf({c.row}), c.option), RowsOf({c.saved})) << c.row.time;
  }
}

TEST(DaySort, OrdersEqualTimesByTextAndKeepsDoubles) {
  EXPECT_EQ(SortDay(RowsOf({{"1:00 PM", "walk"}, {"1:00 PM", "Call"}, {"1:00 PM", "walk"}}),
                    SortTimeOption::kFirst),
            RowsOf({{"1:00 PM", "Call"}, {"1:00 PM", "walk"}, {"1:00 PM", "walk"}}));
}

TEST(DaySort, AnUnprefixedDigitStandsBeforeAllOthers) {
  EXPECT_EQ(SortDay(RowsOf({{"11:00", "a"}, {"9:00", "b"}}), SortTimeOption::kFirst),
            RowsOf({{"00", "b"}, {"11:00", "a"}}));
}

}  // namespace
}  // namespace tarnwell::planner
