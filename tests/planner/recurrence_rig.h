// The planner with the Recurrence Option panel open for an appointment of today.

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "forms/form_names.h"
#include "planner/day_store.h"
#include "planner/filled_day.h"
#include "planner/zcalandar1.h"
#include "support/program_rig.h"

namespace tarnwell::planner {

using forms::Answer;
using text::Date;
using text::MakeDate;

inline const DayRow kDentist{"9:00 AM", "Dentist"};
inline const Date kToday = MakeDate(2026, 3, 9);  // a Monday

class RecurrencePanelTest : public ::testing::Test {
 protected:
  void SetUp() override {
    SaveRows(kToday, {kDentist});
    Open(kToday);
  }
  void SaveRows(Date date, const std::vector<DayRow>& filled) {
    ASSERT_TRUE(WriteDay(rig.folder, date, RowsOf(filled)));
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

}  // namespace tarnwell::planner
