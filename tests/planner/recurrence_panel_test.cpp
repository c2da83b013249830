#include "planner/recurrence_panel.h"

#include "planner/recurrence_rig.h"

namespace tarnwell::planner {
namespace {

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

}  // namespace
}  // namespace tarnwell::planner
