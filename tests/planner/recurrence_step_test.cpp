#include "planner/recurrence_step.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "planner/filled_day.h"

namespace tarnwell::planner {
namespace {

const text::Date kDate = text::MakeDate(2026, 3, 9);
const DayRow kMeeting{"10:00 AM", "Meeting"};

class FakeDayBook : public DayBook {
 public:
  std::optional<DayRows> ReadDay(text::Date date) override {
    if (!readable) return std::nullopt;
    return days[date];
  }
  bool WriteDay(text::Date date, const DayRows& rows) override {
    ++writes;
    if (writable) days[date] = rows;
    return writable;
  }

  std::map<text::Date, DayRows> days;
  bool readable = true;
  bool writable = true;
  int writes = 0;
};

// All rows taken; the last one with a time and, if asked for, a text.
DayRows TakenDay(const std::string& last_text) {
  DayRows rows;
  rows.fill({"1:00 PM", "x"});
  rows.back() = {"2:00 PM", last_text};
  return rows;
}

TEST(RecurrenceStep, ChangesADayOrLeavesItAlone) {
  struct {
    const char* what;
    ChangeMode mode;
    DayRows before;
    DayRows after;
    int full_days;
    int entries_made;
  } const cases[] = {
      {"adds to an empty day", ChangeMode::kAdd, {}, RowsOf({kMeeting}), 0, 1},
      {"adds in the order of the day", ChangeMode::kAdd, RowsOf({{"1:00 PM", "b"}}),
       RowsOf({kMeeting, {"1:00 PM", "b"}}), 0, 1},
      {"does not double", ChangeMode::kAdd, RowsOf({kMeeting}), RowsOf({kMeeting}), 0, 0},
      {"letter case counts", ChangeMode::kAdd, RowsOf({{"10:00 AM", "meeting"}}),
       RowsOf({{"10:00 AM", "meeting"}, kMeeting}), 0, 1},
      {"a blank row ends the search", ChangeMode::kAdd, RowsOf({{}, kMeeting}),
       RowsOf({kMeeting, kMeeting}), 0, 1},
      {"full by the last row's text", ChangeMode::kAdd, TakenDay("y"), TakenDay("y"), 1, 0},
      {"a time alone in the last row is not full, yet leaves no room", ChangeMode::kAdd,
       TakenDay(""), TakenDay(""), 0, 0},
      {"removes one row only", ChangeMode::kRemove, RowsOf({kMeeting, kMeeting, {"", "b"}}),
       RowsOf({kMeeting, {"", "b"}}), 0, 1},
      {"removes an exact match only", ChangeMode::kRemove, RowsOf({{"10:00", "Meeting"}}),
       RowsOf({{"10:00", "Meeting"}}), 0, 0},
      {"refuses to remove from a full day", ChangeMode::kRemove, TakenDay("y"), TakenDay("y"), 1,
       0},
      {"an idle run does nothing", ChangeMode::kIdle, {}, {}, 0, 0},
  };
  for (const auto& c : cases) {
    FakeDayBook book;
    book.days[kDate] = c.before;
    RecurrenceRun run{c.mode, kMeeting, SortTimeOption::kFirst, {}};
    ApplyToDay(run, kDate, book);
    EXPECT_EQ(book.days[kDate], c.after) << c.what;
    EXPECT_EQ(run.counts.full_days, c.full_days) << c.what;
    EXPECT_EQ(run.counts.entries_made, c.entries_made) << c.what;
    EXPECT_EQ(book.writes, c.entries_made) << c.what;
  }
}

TEST(RecurrenceStep, AFailedReadOrWriteIsCountedAndPassedOver) {
  FakeDayBook book;
  RecurrenceRun run{ChangeMode::kAdd, kMeeting, SortTimeOption::kFirst, {}};
  book.readable = false;
  ApplyToDay(run, kDate, book);
  EXPECT_EQ(book.writes, 0);
  EXPECT_EQ(run.counts.failed_days, 1);
  book = {};
  book.writable = false;
  ApplyToDay(run, kDate, book);
  EXPECT_EQ(book.writes, 1);
  ApplyToDay(run, text::MakeDate(2025, 2, 29), book);
  EXPECT_EQ(book.writes, 1);
  EXPECT_EQ(run.counts.entries_made, 0);
  EXPECT_EQ(run.counts.failed_days, 2);
}

TEST(RecurrenceStep, AddingAndRemovingLeavesTheDayAsItWas) {
  std::mt19937 random(11);
  const char* const times[] = {"8:00 AM", "9:30 AM", "12:00 PM", "4:15 pm", "11:00 PM", ""};
  for (int run_number = 0; run_number < 500; ++run_number) {
    const auto option = static_cast<SortTimeOption>(random() % 2);
    DayRows rows;
    for (std::size_t i = random() % 14; i-- > 0;) {
      rows[i] = {times[random() % 6], std::string(1, static_cast<char>('a' + random() % 26))};
    }
    FakeDayBook book;
    const DayRows before = book.days[kDate] = SortDay(rows, option);
    RecurrenceRun run{ChangeMode::kAdd, {times[random() % 6], "Meeting"}, option, {}};
    ApplyToDay(run, kDate, book);
    EXPECT_NE(book.days[kDate], before);
    // A fourteenth text makes the day full, which refuses the removal.
    const bool full = !book.days[kDate].back().entry.empty();
    const DayRows added = book.days[kDate];
    run.change_mode = ChangeMode::kRemove;
    ApplyToDay(run, kDate, book);
    EXPECT_EQ(book.days[kDate], full ? added : before);
  }
}

}  // namespace
}  // namespace tarnwell::planner
