#include "planner/recurrence_messages.h"

#include <gtest/gtest.h>

namespace tarnwell::planner {
namespace {

std::string ReportText(int full_days, int entries_made) {
  const auto report = RunReport({full_days, entries_made});
  return report ? report->text : "no report";
}

TEST(RecurrenceMessages, TheReportFollowsTheCounts) {
  EXPECT_EQ(ReportText(0, 0), "no report");
  EXPECT_EQ(ReportText(0, 3),
            "The recurrence option did make 3 entry(ies).\n"
            "[Note: If Appointment already exists it was not entered again!]");
  EXPECT_EQ(ReportText(1, 0),
            "There was 1 date that was full and this Appointment\n"
            "could not entered for that date!\n"
            "\n"
            "The recurrence option did make 0 entry(ies).\n"
            "[Note: If Appointment already exists it was not entered again!]");
  EXPECT_EQ(ReportText(2, 5),
            "There were 2 dates that were full and this Appointment\n"
            "could not entered for those dates!\n"
            "\n"
            "The recurrence option did make 5 entry(ies).\n"
            "[Note: If Appointment already exists it was not entered again!]");
}

TEST(RecurrenceMessages, TheInterruptionNamesTheLastDateInTwoSpellings) {
  const text::Date date = text::MakeDate(2026, 3, 9);
  const std::string lines =
      "Recurrence File Update has been Stopped Prior to Completion!\n"
      "Not all updates have been accomplished!\n";
  EXPECT_EQ(Interruption(EndKind::kEndDateAfter, date).text,
            lines + "Last entry date was: Mon - 03/09/2026");
  EXPECT_EQ(Interruption(EndKind::kEndDate, date).text,
            lines + "Last entry date was:Mon - 03/09/2026");
}

}  // namespace
}  // namespace tarnwell::planner
