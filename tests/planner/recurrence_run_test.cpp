#include <gmock/gmock.h>

#include <functional>
#include <random>

#include "planner/recurrence_panel.h"
#include "planner/recurrence_rig.h"
#include "support/child_process.h"

namespace tarnwell::planner {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

// The days of March 2026.
std::vector<Date> March(std::initializer_list<unsigned> days) {
  std::vector<Date> dates;
  for (unsigned day : days) dates.push_back(MakeDate(2026, 3, day));
  return dates;
}

class RecurrenceRunTest : public RecurrencePanelTest {};

TEST_F(RecurrenceRunTest, EveryRuleEntersTheRowOnItsDays) {
  struct {
    const char* rule;
    std::function<void(RecurrenceChoice&)> choose;
    std::optional<Date> end;
    const char* entries;
    std::vector<Date> days;
  } const cases[] = {
      {"every 3 days, 4 times",
       [](RecurrenceChoice& c) {
         c.every_days.Type("3");
         c.occurrences.Type("4");
       },
       {},
       "4",
       March({9, 12, 15, 18, 21})},
      {"weekdays", [](RecurrenceChoice& c) { c.modes.Pick(1); }, MakeDate(2026, 3, 16), "5",
       March({9, 10, 11, 12, 13, 16})},
      {"every other Thursday",
       [](RecurrenceChoice& c) {
         c.every_weeks.Type("2");
         c.weekday.Pick(4);
       },
       MakeDate(2026, 4, 10),
       "3",
       {kToday, MakeDate(2026, 3, 12), MakeDate(2026, 3, 26), MakeDate(2026, 4, 9)}},
      {"on the 31st",
       [](RecurrenceChoice& c) { c.day_of_month.Type("31"); },
       MakeDate(2026, 7, 31),
       "3",
       {kToday, MakeDate(2026, 3, 31), MakeDate(2026, 5, 31), MakeDate(2026, 7, 31)}},
      // The third one lies behind the 3 x 366 days that the walk looks at.
      {"every 4 July, 3 times",
       [](RecurrenceChoice& c) {
         c.month.Pick(6);
         c.day.Type("4");
         c.occurrences.Type("3");
       },
       {},
       "2",
       {kToday, MakeDate(2027, 7, 4), MakeDate(2028, 7, 4)}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.rule);
    for (Date day : DaysWith(kDentist)) SaveRows(day, {});
    SaveRows(kToday, {kDentist});
    Open(kToday);
    c.choose(choice());
    if (c.end) EndOn(*c.end);
    ExpectReport(c.entries);
    panel().ok.Click();
    EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(c.days));
    EXPECT_FALSE(panel().panel.visible());
    EXPECT_EQ(form().picker.date(), kToday);
    EXPECT_EQ(form().focus(), &form().entries[0]);
  }
}

TEST_F(RecurrenceRunTest, ARunLeavesAnOrdinaryRecordAndFindsItWhenRunAgain) {
  for (const char* entries : {"1", ""}) {
    Open(kToday);
    choice().modes.Pick(0);
    EndOn(MakeDate(2026, 3, 10));
    if (*entries) ExpectReport(entries);  // the second run has nothing to tell
    panel().ok.Click();
  }
  const std::string file = rig.temporary.Read(" 2026.Cal");
  const std::string record = file.substr(102 * 900);  // 10 March is record 103
  EXPECT_EQ(record.substr(0, 20), "9:00 AM             ");
  EXPECT_EQ(record.substr(140, 60), "Dentist" + std::string(53, ' '));
  EXPECT_EQ(record.substr(840), "Full      ");
}

TEST_F(RecurrenceRunTest, ARunAcrossNewYearWritesToBothYears) {
  const Date evening = MakeDate(2026, 12, 30);
  SaveRows(evening, {kDentist});
  SaveRows(kToday, {});
  Open(evening);
  choice().modes.Pick(0);
  EndOn(MakeDate(2027, 1, 2));
  ExpectReport("3");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAre(evening, MakeDate(2026, 12, 31), MakeDate(2027, 1, 1),
                                              MakeDate(2027, 1, 2)));
  EXPECT_EQ(rig.temporary.Read(" 2027.Cal").substr(10 * 900, 7), "9:00 AM");  // 1 January, 11
}

TEST_F(RecurrenceRunTest, OnlyEndDateTakesTheBeginningDateItself) {
  choice().calendar.SelectDay(MakeDate(2026, 3, 20));
  EXPECT_EQ(choice().beginning.caption(), "03/20/2026 - Fri");
  choice().every_days.Type("2");
  EndOn(MakeDate(2026, 3, 23));
  ExpectReport("3");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 20, 22, 24})));

  Open(kToday);
  choice().calendar.SelectDay(MakeDate(2026, 3, 27));
  choice().every_days.Type("2");
  choice().end_kind.Pick(0);
  ExpectReport("1");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 20, 22, 24, 29})));
}

TEST_F(RecurrenceRunTest, ADayWithATextInItsLastRowIsReportedAsFull) {
  SaveRows(MakeDate(2026, 3, 10), std::vector<DayRow>(14, {"", "Busy"}));
  choice().modes.Pick(0);
  EndOn(MakeDate(2026, 3, 11));
  ExpectReport("1",
               "There was 1 date that was full and this Appointment\n"
               "could not entered for that date!\n\n");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 11})));
}

TEST_F(RecurrenceRunTest, TheStopBoxEndsARunBehindTheDayInHand) {
  choice().modes.Pick(0);
  StopAtYield(3);
  ExpectInterruption("Last entry date was:Wed - 03/11/2026");
  ExpectReport("2");
  panel().ok.Click();
  EXPECT_EQ(rig.loop.yields, 3);
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 10, 11})));
  EXPECT_FALSE(panel().panel.visible());

  Open(kToday);  // the box is unticked, or this run would end behind its first day
  choice().every_days.Type("3");
  choice().occurrences.Type("9");
  StopAtYield(2);
  ExpectInterruption("Last entry date was: Sun - 03/15/2026");
  ExpectReport("2");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 10, 11, 12, 15})));
}

TEST_F(RecurrenceRunTest, AStopAtTheLastCountedDayIsNoInterruption) {
  choice().every_days.Type("3");
  choice().occurrences.Type("2");
  StopAtYield(2);
  ExpectReport("2");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 12, 15})));
}

TEST_F(RecurrenceRunTest, AnIntervalOfNoDaysGoesOnUntilItIsStopped) {
  choice().every_days.Type("0");
  StopAtYield(5000);
  ExpectInterruption("Last entry date was:Mon - 03/09/2026");
  panel().ok.Click();
  EXPECT_EQ(rig.loop.yields, 5000);
  EXPECT_THAT(DaysWith(kDentist), ElementsAre(kToday));
}

TEST_F(RecurrenceRunTest, OnlyTheStopBoxIsLiveWhileARunLasts) {
  choice().modes.Pick(0);
  EndOn(MakeDate(2026, 3, 12));
  ExpectReport("3");
  std::vector<int> progress;
  rig.loop.on_yield = [&] {
    progress.push_back(panel().progress.value());
    EXPECT_EQ(panel().progress.maximum(), 3);
    panel().ok.Click();
    panel().cancel.Click();
    panel().remove.Click();
    form().PressEscape();
    choice().every_days.Type("9");
    choice().modes.Pick(1);
    form().picker.SelectDay(MakeDate(2026, 3, 20));
    rig.ClickMenu("mOE");
    EXPECT_FALSE(rig.CloseWindow());
    EXPECT_EQ(panel().stop.Reachable(), true);
    EXPECT_EQ(form().picker.date(), kToday);
  };
  panel().ok.Click();
  EXPECT_THAT(progress, ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 10, 11, 12})));
}

TEST_F(RecurrenceRunTest, RemovalTakesOneExactRowFromEveryDayOfTheRange) {
  const DayRow moved{"9:30 AM", "Dentist"};
  SaveRows(MakeDate(2026, 3, 10), {kDentist, kDentist});
  SaveRows(MakeDate(2026, 3, 11), {{"8:00 AM", "Bank"}, kDentist, moved});
  SaveRows(MakeDate(2031, 3, 9), {kDentist});
  SaveRows(MakeDate(2031, 3, 10), {kDentist});  // behind the End Date
  Open(kToday);
  for (Answer answer : {Answer::kNo, Answer::kCancel}) {
    ExpectRemovalQuestion(answer);
    panel().remove.Click();
    EXPECT_TRUE(panel().panel.visible());
  }
  EXPECT_EQ(rig.loop.yields, 0);
  choice().every_days.Type("30");
  ExpectRemovalQuestion(Answer::kYes);
  panel().remove.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAre(MakeDate(2026, 3, 10), MakeDate(2031, 3, 10)));
  EXPECT_THAT(DaysWith(moved), ElementsAre(MakeDate(2026, 3, 11)));
  EXPECT_EQ(ReadDay(rig.folder, MakeDate(2026, 3, 11))->rows[0].entry, "Bank");
  EXPECT_EQ(rig.loop.yields, 1827);
  EXPECT_EQ(form().entries[0].text(), "");  // the day on screen lost its row too
}

TEST_F(RecurrenceRunTest, ARunKilledAtAnyMomentLeavesEachDayAsItWasOrWithTheEntry) {
  constexpr int kRounds = 20;
  constexpr int kDays = 1827;
  const DayRow early{"7:00 AM", "Run"};
  std::mt19937 random(20260309);
  std::uniform_int_distribution<useconds_t> microseconds(0, 30000);
  int interrupted = 0;
  for (int round = 0; round < kRounds; ++round) {
    for (int day = 0; day < kDays; ++day) {
      SaveRows(text::AddDays(kToday, day),
               day % 3 == 0 ? std::vector{early} : std::vector{DayRow{}});
    }
    SaveRows(kToday, {kDentist});
    Open(kToday);
    choice().modes.Pick(0);
    testing::ChildProcess child([this] {
      ExpectReport("1826");
      panel().ok.Click();
    });
    ::usleep(microseconds(random));
    child.Kill();
    rig.Start();
    int entered = 0;
    for (int day = 1; day < kDays; ++day) {
      DayRows before{};
      if (day % 3 == 0) before[0] = early;
      DayRows after = before;
      after[day % 3 == 0 ? 1 : 0] = kDentist;
      const auto stored = ReadDay(rig.folder, text::AddDays(kToday, day));
      ASSERT_TRUE(stored && (stored->rows == before || stored->rows == after)) << day;
      entered += stored->rows == after;
    }
    interrupted += entered > 0 && entered < kDays - 1;
  }
  EXPECT_GT(interrupted, 0) << "no kill ever hit a run";
}

}  // namespace
}  // namespace tarnwell::planner
