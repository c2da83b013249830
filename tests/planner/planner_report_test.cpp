#include "planner/planner_report.h"

#include <gmock/gmock.h>

#include "planner/day_store.h"
#include "support/fixed_metrics.h"
#include "support/temporary_folder.h"

namespace tarnwell::planner {
namespace {

using ::testing::ElementsAre;
using testing::FixedMetrics;
using ::testing::IsEmpty;
using testing::TextsOf;
using text::MakeDate;

TEST(MonthViewTest, DaysAreLabelledAsTheyAreSpoken) {
  const std::pair<int, const char*> cases[] = {
      {1, " 1st"},   {2, " 2nd"},   {3, " 3rd"},   {4, " 4th"},   {11, " 11th"}, {12, " 12th"},
      {13, " 13th"}, {20, " 20th"}, {21, " 21st"}, {22, " 22nd"}, {23, " 23rd"}, {31, " 31st"},
  };
  for (const auto& [day, label] : cases) EXPECT_EQ(DayLabel(day), label);
}

TEST(MonthViewTest, ListsTheTextsOfSavedDaysWithTheDayOnItsFirstRow) {
  testing::TemporaryFolder disk;
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  EXPECT_THAT(*ListMonth(folder, 2026, 3), IsEmpty());
  DayRows rows;
  rows[0] = {"8:00 AM", ""};
  rows[1] = {"9:00 AM", "Bank"};
  rows[2] = {"", "Call"};
  for (unsigned month : {2u, 3u, 10u, 12u}) {
    const unsigned last = month == 2 ? 29 : 31;
    ASSERT_TRUE(WriteDay(folder, MakeDate(2028, month, 1), rows));
    ASSERT_TRUE(WriteDay(folder, MakeDate(2028, month, last), rows));
    const std::string label = DayLabel(static_cast<int>(last));
    EXPECT_THAT(*ListMonth(folder, 2028, month),
                ElementsAre(MonthRow{" 1st", "9:00 AM", "Bank"}, MonthRow{"", "", "Call"},
                            MonthRow{label, "9:00 AM", "Bank"}, MonthRow{"", "", "Call"}));
  }
  EXPECT_THAT(*ListMonth(folder, 2028, 11), IsEmpty());
}

class PlannerReportTest : public ::testing::Test {
 protected:
  PlannerReportTest() {
    rows[0] = {"9:00 AM", "Bank"};
    rows[1] = {"1:00 PM", ""};
    rows[3] = {"", "Call"};
  }
  void Start(int lines = 40) { engine.Start({12240, 200 + lines * 240, false, {}}, {}); }
  std::vector<std::string> Texts(std::size_t page) {
    return TextsOf(engine.document().pages.at(page));
  }

  std::vector<forms::PlacedText> PlacedTexts() {
    std::vector<forms::PlacedText> texts;
    for (const auto& mark : engine.document().pages.at(0)) {
      if (const auto* text = std::get_if<forms::PlacedText>(&mark)) texts.push_back(*text);
    }
    return texts;
  }

  FixedMetrics metrics;
  print::PageEngine engine{metrics};
  forms::ProgramVariables variables;
  DayRows rows;
  const text::Date date = MakeDate(2026, 3, 9);
};

TEST_F(PlannerReportTest, ADaysPageHasALineForEachRowInUse) {
  const std::string title = "Appointments/Activities For Monday, March 09, 2026";
  Start();
  PrintDay(engine, variables, date, rows, {});
  EXPECT_THAT(Texts(0), ElementsAre(title, "Time", "Appointment/Activity", "9:00 AM", "Bank",
                                    "1:00 PM", "Call"));
  EXPECT_EQ(engine.document().fonts.at(0).size, 12);

  variables.CompanyLine = "Ours";
  Start();
  PrintDay(engine, variables, date, rows, {.two_columns = true, .lines = true});
  EXPECT_THAT(Texts(0), ElementsAre("Ours " + title, "Time", "Appointment/Activity", "Time",
                                    "Appointment/Activity", "9:00 AM", "Bank", "1:00 PM", "Call"));
  const auto texts = PlacedTexts();
  EXPECT_EQ(texts.at(5).y, texts.at(7).y);  // two rows on a line
}

TEST_F(PlannerReportTest, AMonthRepeatsItsHeadsAndNumbersItsPages) {
  const std::vector<MonthRow> month(20, MonthRow{"", "", std::string(30, 'e')});
  engine.on_new_page = [&] { PrintMonthHead(engine, variables, date, MakeDate(2026, 10, 1)); };
  Start(15);
  PrintMonth(engine, month, {});
  ASSERT_EQ(engine.page_count(), 2);
  const auto second = Texts(1);
  EXPECT_THAT(std::vector(second.begin(), second.begin() + 6),
              ElementsAre("As of  March 09, 2026 (Page - 2)", "Monthly Calendar For October, 2026",
                          "Day", "Time", "Appointment/Activity", std::string(30, 'e')));

  variables.NoAsOfDate = 1;
  Start(15);
  PrintMonth(engine, month, {.two_columns = true});
  EXPECT_EQ(engine.page_count(), 1);
  EXPECT_EQ(Texts(0).front(), "(Page - 1)");
  EXPECT_EQ(Texts(0).back(), std::string(25, 'e'));
}

TEST_F(PlannerReportTest, ClipboardTextsStandBelowTheirHeadings) {
  EXPECT_EQ(DayText(date, rows),
            "Appointments/Activities For Monday, March 09, 2026\r\n"
            " Time                            Appointment/Activity\r\n"
            " 9:00 AM                         Bank\r\n"
            " 1:00 PM                         \r\n"
            "                                 Call\r\n");
  EXPECT_EQ(MonthText("March 2026", {{" 9th", "9:00 AM", "Bank"}, {"", "", "Call"}}),
            "Month Calendar For March 2026\r\n"
            "Day     Time                        Appointment/Activity\r\n"
            " 9th    9:00 AM                     Bank\r\n"
            "                                    Call\r\n");
}

}  // namespace
}  // namespace tarnwell::planner
