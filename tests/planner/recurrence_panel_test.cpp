#include "planner/recurrence_panel.h"

#include <gmock/gmock.h>

#include <functional>
#include <random>

#include "forms/form_names.h"
#include "planner/day_store.h"
#include "planner/zcalandar1.h"
#include "support/child_process.h"
#include "support/program_rig.h"

namespace tarnwell::planner {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using text::Date;
using text::MakeDate;

const DayRow kDentist{"9:00 AM", "Dentist"};
const Date kToday = MakeDate(2026, 3, 9);  // a Monday

// The days of March 2026.
std::vector<Date> March(std::initializer_list<unsigned> days) {
  std::vector<Date> dates;
  for (unsigned day : days) dates.push_back(MakeDate(2026, 3, day));
  return dates;
}

class RecurrencePanelTest : public ::testing::Test {
 protected:
  void SetUp() override {
    SaveRows(kToday, {kDentist});
    Open(kToday);
  }
  void SaveRows(Date date, const std::vector<DayRow>& filled) {
    DayRows rows;
    std::copy(filled.begin(), filled.end(), rows.begin());
    ASSERT_TRUE(WriteDay(rig.folder, date, rows));
  }
  // A new run of the program, with the panel open for the first row of the date.
  void Open(Date date) {
    rig.Start();
    rig.navigator().Show(forms::form_names::kZcalandar1);
    form().picker.SelectDay(date);
    form().recurrence_buttons[0].Click();
    rig.loop.yields = 0;
  }
  Zcalandar1& form() { return rig.Get<Zcalandar1>("Zcalandar1"); }
  RecurrencePanel& panel() { return form().recurrence; }
  RecurrenceChoice& choice() { return form().recurrence.choice; }

  void EndOn(Date date) {
    choice().date_to_change.Pick(1);
    choice().calendar.SelectDay(date);
  }
  void ExpectReport(const std::string& entries, const std::string& full_days = {}) {
    rig.dialogs.ExpectNote(
        "Recurrence Option",
        full_days + "The recurrence option did make " + entries +
            " entry(ies).\n[Note: If Appointment already exists it was not entered again!]");
  }
  void ExpectTenYears() {
    rig.dialogs.ExpectWarning(
        "Recurrence Option Maximum Year Requirement",
        "Program years have exceeded 10 year maximum!\nAppropriate changes will been made.");
  }
  void ExpectRemovalQuestion(Answer answer) {
    rig.dialogs.Expect({"Remove This Recurrence",
                        "Are you sure we want to remove the recurrences of this appointment?\n"
                        "Note: The Removal action will check each day between the Selected\n"
                        "          Beginning Date and End Date and remove the appointment.",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       answer);
  }
  // A person clicks the stop box while the panel yields for the n-th time.
  void StopAtYield(int n) {
    rig.loop.on_yield = [this, n] {
      if (rig.loop.yields == n) panel().stop.Check(true);
    };
  }
  void ExpectInterruption(const std::string& last_line) {
    rig.dialogs.ExpectError("Recurrence Interruption!",
                            "Recurrence File Update has been Stopped Prior to Completion!\n"
                            "Not all updates have been accomplished!\n" +
                                last_line);
  }
  // The days on the disk that have the row, from 2026 to 2031.
  std::vector<Date> DaysWith(const DayRow& row) {
    std::vector<Date> days;
    for (Date date = MakeDate(2026, 1, 1); text::YearOf(date) < 2032;
         date = text::AddDays(date, 1)) {
      const DayRows rows = ReadDay(rig.folder, date)->rows;
      if (std::ranges::find(rows, row) != rows.end()) days.push_back(date);
    }
    return days;
  }

  testing::ProgramRig rig;
};

TEST_F(RecurrencePanelTest, OpensInPlaceOfTheDayWithItsDefaults) {
  EXPECT_TRUE(panel().panel.visible());
  EXPECT_FALSE(form().day.Reachable() || form().picker.Reachable());
  EXPECT_TRUE(form().recurrence_buttons[0].selected());
  EXPECT_EQ(panel().appointment.caption(), " Appointment: 9:00 AM Dentist ");
  EXPECT_EQ(choice().modes.chosen(), forms::OptionGroup::kNone);
  for (auto* box : {&choice().every_days, &choice().every_weeks, &choice().day_of_month,
                    &choice().every_months, &choice().every_years, &choice().occurrences}) {
    EXPECT_EQ(box->text(), "1") << box->name();
  }
  EXPECT_EQ(choice().weekday.chosen(), 1);
  EXPECT_EQ(choice().month.text(), "March");
  EXPECT_EQ(choice().day.text(), "9");
  EXPECT_EQ(choice().end_kind.chosen(), 1);
  EXPECT_EQ(choice().beginning.caption(), "03/09/2026 - Mon");
  EXPECT_EQ(choice().end.caption(), "03/09/2031 - Sun");
  EXPECT_EQ(choice().calendar.date(), kToday);
  EXPECT_FALSE(panel().run_panel.visible());
  panel().cancel.Click();
  EXPECT_FALSE(panel().panel.visible());
  EXPECT_TRUE(form().day.Reachable() && form().picker.Reachable());
  EXPECT_FALSE(form().recurrence_buttons[0].selected());
}

TEST_F(RecurrencePanelTest, EveryRuleEntersTheRowOnItsDays) {
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

TEST_F(RecurrencePanelTest, ARunLeavesAnOrdinaryRecordAndFindsItWhenRunAgain) {
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

TEST_F(RecurrencePanelTest, ARunAcrossNewYearWritesToBothYears) {
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

TEST_F(RecurrencePanelTest, OnlyEndDateTakesTheBeginningDateItself) {
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

TEST_F(RecurrencePanelTest, ADayWithATextInItsLastRowIsReportedAsFull) {
  SaveRows(MakeDate(2026, 3, 10), std::vector<DayRow>(14, {"", "Busy"}));
  choice().modes.Pick(0);
  EndOn(MakeDate(2026, 3, 11));
  ExpectReport("1",
               "There was 1 date that was full and this Appointment\n"
               "could not entered for that date!\n\n");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 11})));
}

TEST_F(RecurrencePanelTest, TypingCorrectsTheBoxAndSelectsItsRule) {
  auto& c = choice();
  struct {
    forms::TextField& box;
    const char* typed;
    const char* kept;
    int mode;
  } const cases[] = {
      {c.every_days, "95", "90", 0},   {c.every_weeks, "60", "52", 2},
      {c.day_of_month, "40", "31", 3}, {c.every_years, "1-", "1", 5},
      {c.every_months, "13", "12", 3}, {c.day, "", "1", 5},
  };
  for (const auto& typing : cases) {
    typing.box.Type(typing.typed);
    EXPECT_EQ(typing.box.text(), typing.kept) << typing.box.name();
    EXPECT_EQ(c.modes.chosen(), typing.mode) << typing.box.name();
  }
  c.weekday.Pick(6);
  EXPECT_EQ(c.modes.chosen(), 2);
  c.month.Pick(1);
  EXPECT_EQ(c.modes.chosen(), 5);
  EXPECT_EQ(c.end_kind.chosen(), 1);
  c.occurrences.Type("x");
  EXPECT_EQ(c.occurrences.text(), "1");
  EXPECT_EQ(c.end_kind.chosen(), 0);
  c.date_to_change.Pick(1);
  EXPECT_EQ(c.end_kind.chosen(), 1);
}

TEST_F(RecurrencePanelTest, OccurrencesAreTrimmedToTenYearsWithAMessage) {
  auto& c = choice();
  c.every_days.Type("90");
  ExpectTenYears();
  c.occurrences.Type("90");
  EXPECT_EQ(c.occurrences.text(), "40");
  c.every_days.Type("1");
  c.occurrences.Type("90");
  ExpectTenYears();
  c.every_days.Type("90");
  EXPECT_EQ(c.occurrences.text(), "40");
  // Under "End Date:" a box isn't held against ten years, yet a click on its rule is.
  c.end_kind.Pick(1);
  c.every_years.Type("10");
  EXPECT_EQ(c.occurrences.text(), "40");
  ExpectTenYears();
  c.modes.Pick(5);
  EXPECT_EQ(c.occurrences.text(), "1");
  EXPECT_EQ(c.end_kind.chosen(), 1);
}

TEST_F(RecurrencePanelTest, DatesOutsideTheLimitsAreIgnoredOrReplaced) {
  choice().calendar.SelectDay(MakeDate(2026, 2, 6));
  EXPECT_EQ(choice().beginning.caption(), "03/09/2026 - Mon");
  EXPECT_EQ(choice().calendar.date(), kToday);
  choice().calendar.SelectDay(MakeDate(2026, 2, 7));
  EXPECT_EQ(choice().beginning.caption(), "02/07/2026 - Sat");
  choice().date_to_change.Pick(1);
  EXPECT_EQ(choice().calendar.date(), MakeDate(2031, 3, 9));
  choice().calendar.SelectDay(MakeDate(2036, 3, 9));
  EXPECT_EQ(choice().end.caption(), "03/09/2036 - Sun");
  ExpectTenYears();
  choice().calendar.SelectDay(MakeDate(2040, 1, 1));
  EXPECT_EQ(choice().end.caption(), "03/10/2036 - Mon");
}

TEST_F(RecurrencePanelTest, OkWithoutARuleBeepsAndKeepsThePanelOpen) {
  rig.dialogs.ExpectWarning("OK Button Selection",
                            "No Recurrence Option was selected!\n"
                            "Please Select Option Desired before clicking the OK Button.");
  EXPECT_TRUE(form().PressEnter());
  EXPECT_EQ(rig.window.beeps, 1);
  EXPECT_TRUE(panel().ok.Reachable() && panel().cancel.Reachable() && panel().remove.Reachable());
  EXPECT_FALSE(panel().run_panel.visible() || form().busy());
  EXPECT_TRUE(choice().modes.option(0).Reachable());
}

TEST_F(RecurrencePanelTest, AnEndDateNotBehindTheBeginningDoesNothingAndTellsNothing) {
  choice().modes.Pick(0);
  EndOn(kToday);
  panel().ok.Click();
  EXPECT_EQ(rig.loop.yields, 0);
  EXPECT_FALSE(panel().panel.visible());
}

TEST_F(RecurrencePanelTest, TheStopBoxEndsARunBehindTheDayInHand) {
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

TEST_F(RecurrencePanelTest, AStopAtTheLastCountedDayIsNoInterruption) {
  choice().every_days.Type("3");
  choice().occurrences.Type("2");
  StopAtYield(2);
  ExpectReport("2");
  panel().ok.Click();
  EXPECT_THAT(DaysWith(kDentist), ElementsAreArray(March({9, 12, 15})));
}

TEST_F(RecurrencePanelTest, ANumberTypedOverTheSameNumberChoosesItsRule) {
  const std::pair<forms::TextField*, RecurrenceMode> boxes[] = {
      {&choice().every_days, RecurrenceMode::kDaily},
      {&choice().every_weeks, RecurrenceMode::kWeekly},
      {&choice().day_of_month, RecurrenceMode::kMonthly},
      {&choice().every_months, RecurrenceMode::kMonthly},
      {&choice().every_years, RecurrenceMode::kYearly},
  };
  for (const auto& [box, mode] : boxes) {
    EXPECT_TRUE(box->select_on_entry()) << box->name();
    box->Type("1");
    EXPECT_EQ(choice().mode(), mode) << box->name();
  }
  choice().occurrences.Type("1");
  EXPECT_EQ(choice().end_kind.chosen(), 0);
}

TEST_F(RecurrencePanelTest, TheBarIsEmptyBehindTheWarningThatNoRuleIsChosen) {
  choice().modes.Pick(0);
  choice().occurrences.Type("3");
  ExpectReport("3");
  panel().ok.Click();
  Open(kToday);
  rig.dialogs.ExpectWarning("OK Button Selection",
                            "No Recurrence Option was selected!\n"
                            "Please Select Option Desired before clicking the OK Button.");
  panel().ok.Click();
  EXPECT_EQ(panel().progress.value(), 0);
}

TEST_F(RecurrencePanelTest, AnIntervalOfNoDaysGoesOnUntilItIsStopped) {
  choice().every_days.Type("0");
  StopAtYield(5000);
  ExpectInterruption("Last entry date was:Mon - 03/09/2026");
  panel().ok.Click();
  EXPECT_EQ(rig.loop.yields, 5000);
  EXPECT_THAT(DaysWith(kDentist), ElementsAre(kToday));
}

TEST_F(RecurrencePanelTest, OnlyTheStopBoxIsLiveWhileARunLasts) {
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

TEST_F(RecurrencePanelTest, RemovalTakesOneExactRowFromEveryDayOfTheRange) {
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

TEST_F(RecurrencePanelTest, ARowWithoutATextOpensNothing) {
  panel().cancel.Click();
  EXPECT_TRUE(form().recurrence_buttons[1].no_drop());
  EXPECT_FALSE(form().recurrence_buttons[0].no_drop());
  form().recurrence_buttons[1].Click();
  EXPECT_FALSE(panel().panel.visible() || form().recurrence_buttons[1].selected());
}

TEST_F(RecurrencePanelTest, UnsavedChangesAreOfferedToBeSavedBeforeThePanelOpens) {
  const std::string question = "Save changes/entries before next action?";
  panel().cancel.Click();
  form().entries[1].Type("Bank");
  EXPECT_FALSE(form().recurrence_buttons[1].no_drop());
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kYes);
  form().recurrence_buttons[1].Click();  // no box tells of the save
  EXPECT_FALSE(panel().panel.visible());
  EXPECT_EQ(ReadDay(rig.folder, kToday)->rows[1].entry, "Bank");

  form().entries[2].Type("Call");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kNo);
  form().recurrence_buttons[2].Click();
  EXPECT_EQ(form().entries[2].text(), "Call");
  EXPECT_EQ(ReadDay(rig.folder, kToday)->rows[2].entry, "");
  rig.dialogs.ExpectYesNo("Daily Planner", question, Answer::kYes);
  form().recurrence_buttons[2].Click();  // the row isn't on the disk yet, so it asks again
  form().recurrence_buttons[2].Click();
  EXPECT_TRUE(panel().panel.visible());
  EXPECT_EQ(panel().appointment.caption(), " Appointment: Call ");
}

TEST_F(RecurrencePanelTest, ARunKilledAtAnyMomentLeavesEachDayAsItWasOrWithTheEntry) {
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
