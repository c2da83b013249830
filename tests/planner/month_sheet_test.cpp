#include "planner/month_sheet.h"

#include <gmock/gmock.h>

#include "planner/sheet_import.h"
#include "planner/sheet_lines.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::planner {
namespace {

using ::testing::ElementsAre;

const text::Date kMarch = text::MakeDate(2026, 3, 9);

std::vector<std::string> Used(const DayLines& lines) {
  std::vector<std::string> used;
  for (const std::string& line : lines) {
    if (!line.empty()) used.push_back(line);
  }
  return used;
}

class MonthSheetTest : public ::testing::Test {
 protected:
  MonthSheet Read(const std::string& content) {
    disk.Write("202603.Fil", content);
    return ReadMonthSheet(folder, kMarch, usual).sheet;
  }

  testing::TemporaryFolder disk;
  storage::ProgramFolder folder{storage::RealFileSystem(), disk.path()};
  const forms::Font usual{.size = 12, .bold = true, .color = 255};
};

TEST_F(MonthSheetTest, TheFileHoldsTenLinesADayAndTheFont) {
  MonthSheet sheet = ReadMonthSheet(folder, kMarch, usual).sheet;
  EXPECT_EQ(sheet.font, usual);
  sheet.font = {};
  sheet.DayOf(kMarch)[0] = "9:00 AM Dentist";
  ASSERT_TRUE(WriteMonthSheet(folder, kMarch, sheet));
  const std::string content = disk.Read("202603.Fil");
  const auto example = testing::ReadFormatExample("calendar-sheet.md");
  ASSERT_FALSE(example.runs.empty());
  EXPECT_EQ(content.size(), example.size);
  for (const auto& [offset, bytes] : example.runs) {
    EXPECT_EQ(content.substr(offset, bytes.size()), bytes) << offset;
  }
  std::string empty_lines;
  for (int i = 0; i < 80; ++i) empty_lines += "\"\"\r\n";
  EXPECT_EQ(content.substr(0, 320), empty_lines);
  EXPECT_EQ(ReadMonthSheet(folder, kMarch, usual).sheet, sheet);
  EXPECT_EQ(ReadMonthSheet(folder, text::MakeDate(2025, 3, 9), usual).sheet.DayOf(kMarch)[0], "");

  ASSERT_TRUE(DeleteMonthSheet(folder, kMarch));
  EXPECT_FALSE(folder.Exists("202603.fil"));
  EXPECT_TRUE(DeleteMonthSheet(folder, kMarch));
}

TEST_F(MonthSheetTest, MissingBlankAndOddSettingsHaveTheirDefaults) {
  std::string lines;
  for (int i = 1; i <= 309; ++i) lines += "\"" + std::to_string(i) + "\"\r\n";
  EXPECT_EQ(Read(lines).days[30][8], "309");
  EXPECT_EQ(Read(lines).days[30][9], "");
  EXPECT_EQ(Read(lines).font, usual);
  lines += "\"last\"\r\n";
  const struct {
    const char* settings;
    forms::Font font;
  } cases[] = {
      {"\"\",\"\",\"\",\"\",\"\",\"\",\"\"", usual},
      {"\"Arial\"\r\n\"0.5\"\r\n", {.name = "Arial", .size = 12, .bold = true, .color = 255}},
      {"\" \",99999,\"No\"", {.size = 12, .color = 255}},
      {"\"Arial\",8.5,#TRUE#,True,-1,yes,-5,1,2,3",
       {.name = "Arial",
        .size = 8.5,
        .italic = true,
        .underline = true,
        .strike = true,
        .color = 255}},
  };
  for (const auto& c : cases) EXPECT_EQ(Read(lines + c.settings).font, c.font) << c.settings;
}

TEST(SheetLinesTest, AnEntryIsPlacedOnceAndCompletesAShorterLine) {
  const struct {
    std::vector<std::string> before;
    const char* entry;
    const char* fitted;
    Placed placed;
    std::vector<std::string> after;
  } cases[] = {
      {{}, "Dentist", "Dentist", Placed::kPlaced, {"Dentist"}},
      {{"Dentist"}, "Dentist", "Dentist", Placed::kFound, {"Dentist"}},
      {{"9:00 AM Dentist"}, "Dentist", "Dentist", Placed::kFound, {"9:00 AM Dentist"}},
      {{"x", "Dentist "},
       "9:00 AM Dentist",
       "9:00 AM Dentist",
       Placed::kPlaced,
       {"x", "9:00 AM Dentist"}},
      {{"tist"}, "Dentist", "Dentist", Placed::kPlaced, {"tist", "Dentist"}},
      {{"Endodentist"}, "dentist", "dentist", Placed::kPlaced, {"Endodentist", "dentist"}},
      {{"9:00 AM Den"}, "9:00 AM Dentist", "9:00 AM Den", Placed::kFound, {"9:00 AM Den"}},
      {{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
       "11",
       "11",
       Placed::kNoRoom,
       {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}},
  };
  for (const auto& c : cases) {
    DayLines lines;
    std::ranges::copy(c.before, lines.begin());
    EXPECT_EQ(PlaceEntry(lines, c.entry, c.fitted), c.placed) << c.entry;
    EXPECT_EQ(Used(lines), c.after);
  }
}

TEST(SheetLinesTest, LinesAreSortedByTheirTimesAndStayWhole) {
  const DayLines day{"lunch",      "1:00 PM b", "",         "9:00 no half",
                     "10:00 AM x", "9:30 am y", "1:00 PM a"};
  DayLines lines = day;
  SortLines(lines, SortTimeOption::kFirst);
  EXPECT_THAT(Used(lines), ElementsAre("9:00 no half", "9:30 am y", "10:00 AM x", "1:00 PM a",
                                       "1:00 PM b", "lunch"));
  lines = day;
  SortLines(lines, SortTimeOption::kLast);
  EXPECT_EQ(lines[0], "9:00 no half");
  EXPECT_EQ(lines[1], "lunch");
  EXPECT_EQ(lines[6], "");
}

TEST(SheetImportTest, APlannerDayComesWithOrWithoutItsTimesAndOnlyOnce) {
  DayRows rows;
  rows[0] = {"2:00 PM", "Bank"};
  rows[1] = {"9:00 AM", "15\" screen"};
  rows[2] = {"", "Call Ann"};
  DayLines lines{"Bank"};
  EXPECT_TRUE(ImportRows(lines, rows, {.with_times = false}).changed);
  EXPECT_THAT(Used(lines), ElementsAre("15' screen", "Bank", "Call Ann"));
  EXPECT_TRUE(ImportRows(lines, rows, {}).changed);
  EXPECT_THAT(Used(lines), ElementsAre("9:00 AM 15' screen", "2:00 PM Bank", "Call Ann"));
  const Imported again = ImportRows(lines, rows, {});
  EXPECT_TRUE(again.found && !again.changed);

  const PlannerImport cut{.fit = [](const std::string& entry) { return entry.substr(0, 10); }};
  DayLines narrow;
  EXPECT_TRUE(ImportRows(narrow, rows, cut).changed);
  EXPECT_THAT(Used(narrow), ElementsAre("9:00 AM 15", "2:00 PM Ba", "Call Ann"));
  EXPECT_FALSE(ImportRows(narrow, rows, cut).changed);
  EXPECT_FALSE(ImportRows(narrow, {}, {}).found);
}

TEST(SheetImportTest, AToDoDateIsOfTheCenturyThatItsWeekdaySays) {
  storage::SequentialReader list(
      std::string("\"a\",\"Sun - Jan 5, 31\",\"\"\r\n"
                  "\"b\",\"Wed - Sep 10, 31\",\"\"\r\n"
                  "\"c\",\"1/5/31\",\"\"\r\n"));
  std::vector<text::Date> dates;
  for (const ToDoItem& item : ReadToDoItems(list)) dates.push_back(item.date);
  EXPECT_THAT(dates, ElementsAre(text::MakeDate(2031, 1, 5), text::MakeDate(2031, 9, 10),
                                 text::MakeDate(1931, 1, 5)));
}

TEST(SheetImportTest, ItemsOfTheMonthComeOnTheirDays) {
  MonthSheet sheet;
  const std::vector<ToDoItem> items{{text::MakeDate(2026, 3, 31), "Report"},
                                    {text::MakeDate(2026, 4, 1), "no"},
                                    {text::MakeDate(2025, 3, 31), "no"}};
  EXPECT_TRUE(ImportItems(sheet, kMarch, items).changed);
  EXPECT_THAT(Used(sheet.days[30]), ElementsAre("Report"));
  EXPECT_THAT(Used(sheet.days[0]), ElementsAre());
  const Imported again = ImportItems(sheet, kMarch, items);
  EXPECT_TRUE(again.found && !again.changed);
}

}  // namespace
}  // namespace tarnwell::planner
