#include "workarea/todo_list.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/format_page.h"
#include "support/temporary_folder.h"
#include "workarea/todo_dates.h"
#include "workarea/todo_names.h"

namespace tarnwell::workarea {
namespace {

using ::testing::ElementsAre;
using testing::FileOf;
using ::testing::IsEmpty;
using testing::ReadFormatExample;

class ToDoListTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk;
  storage::ProgramFolder folder{storage::RealFileSystem(), disk.path()};
};

TEST_F(ToDoListTest, TheFileHasFiveLinesForEachRowAndNoSpacer) {
  ToDoList list = ReadToDoList(folder);
  ASSERT_EQ(list.rows.size(), 500u);
  list.rows[0] = {"Pay rent", "Mon - Mar 9, 26", "", ""};
  list.rows[499] = {"last", "a", "b", "c"};
  ASSERT_TRUE(WriteToDoList(folder, list.rows));
  const std::string content = disk.Read("TODOActv.FIL");
  const std::string first = FileOf(ReadFormatExample("todoactv.md"));
  EXPECT_EQ(content.substr(0, first.size()), first);
  std::string blank_rows;
  for (int line = 0; line < 498 * 5; ++line) blank_rows += "\"\"\r\n";
  EXPECT_EQ(content.substr(first.size()),
            blank_rows + "\"last\"\r\n\"a\"\r\n\"b\"\r\n\"\"\r\n\"c\"\r\n");
  EXPECT_EQ(ReadToDoList(folder).rows, list.rows);
  EXPECT_FALSE(folder.Exists("TODOActv.Fl2"));
  ASSERT_TRUE(WriteGeneralSave(folder, list.rows));
  EXPECT_EQ(disk.Read("TODOActv.Fl2"), content);
}

TEST_F(ToDoListTest, ALongOrCutFileLosesNoRowThatItHolds) {
  std::vector<ToDoRow> rows(503);
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].review = std::to_string(i);
  ASSERT_TRUE(WriteToDoList(folder, rows));
  EXPECT_EQ(ReadToDoList(folder).rows, rows);

  const std::string whole = FileOf(ReadFormatExample("todoactv.md"));
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    disk.Write("TODOActv.FIL", whole.substr(0, length));
    const ToDoList cut = ReadToDoList(folder);
    ASSERT_EQ(cut.rows.size(), 500u) << length;
    const std::string known = length < 2 ? "" : std::string("Pay rent").substr(0, length - 1);
    EXPECT_EQ(cut.rows[0].item, known) << length;
    EXPECT_TRUE(IsBlank(cut.rows[1])) << length;
  }
}

TEST_F(ToDoListTest, WhatCantBeReadIsNoEmptyList) {
  for (const char* name : {"TODOActv.FIL", "TODONAME.FIL"}) {
    std::filesystem::create_directory(disk.path() + "/" + name);
  }
  EXPECT_EQ(ReadToDoList(folder).fault, storage::Fault::kNotPlain);
  EXPECT_THAT(ReadToDoList(folder).rows, IsEmpty());
  ToDoNames names(folder);
  names.Read();
  EXPECT_FALSE(names.is_readable());
  EXPECT_TRUE(names.Add("Pay rent"));
  EXPECT_THAT(names.names(), IsEmpty());
  EXPECT_TRUE(std::filesystem::is_directory(disk.path() + "/TODONAME.FIL"));
}

TEST_F(ToDoListTest, NamesAreKeptOnceInTheOrderInWhichTheyCame) {
  ToDoNames names(folder);
  names.Read();
  for (const char* name : {"Pay rent", "Order paper", "PAY RENT", "pay rent  ", "", "  "}) {
    ASSERT_TRUE(names.Add(name));
  }
  EXPECT_EQ(disk.Read("TODONAME.FIL"), FileOf(ReadFormatExample("todoname.md")));
  EXPECT_EQ(disk.Read("Location.Fil"), "\" \"\r\n");

  ASSERT_TRUE(names.Add("Order papr"));
  ASSERT_TRUE(names.Correct({{"order papr", "Order paper"},  // falls together
                             {"Pay rent", "Pay Rent"},
                             {"not there", "there"}}));
  EXPECT_THAT(names.names(), ElementsAre("Pay Rent", "Order paper"));
  for (int time = 0; time < 2; ++time) ASSERT_TRUE(names.Remove(" pay rent "));
  EXPECT_EQ(disk.Read("TODONAME.FIL"), "\"Order paper\"\r\n");

  std::string most = "\" \"\r\n";  // no name
  for (int i = 1; i < 1000; ++i) most += "\"" + std::to_string(i) + "\"\r\n";
  disk.Write("TODONAME.FIL", most);
  names.Read();
  ASSERT_TRUE(names.Add("the 1000th"));
  ASSERT_TRUE(names.Add("the 1001st"));
  EXPECT_EQ(names.names().size(), 1000u);
  EXPECT_EQ(names.names().back(), "the 1000th");
}

TEST(ToDoDatesTest, ACellsDateStandsBehindItsFirstDash) {
  const struct {
    const char* cell;
    std::optional<text::Date> date;
    const char* key;
  } cases[] = {
      {"Mon - Mar 9, 26", text::MakeDate(2026, 3, 9), "20260309"},
      {"due - 3/9/2026", text::MakeDate(2026, 3, 9), "20260309"},
      {"Sun - Jan 5, 31", text::MakeDate(2031, 1, 5), "20310105"},
      {"Mon - Jan 5, 31", text::MakeDate(1931, 1, 5), "19310105"},
      {"3/9/2026", {}, "20260309"},
      {"soon", {}, "~soon"},
      {"next - week", {}, "~next - week"},
      {"-", {}, "~-"},
      {"  ", {}, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadToDoDate(c.cell), c.date) << c.cell;
    EXPECT_EQ(ToDoDateKey(c.cell), c.key) << c.cell;
  }
  // What the calendar writes is read back, thirty years on as well.
  for (int days = 0; days < 366 * 30; ++days) {
    const text::Date date = text::AddDays(text::MakeDate(2026, 1, 1), days);
    ASSERT_EQ(ReadToDoDate(ToDoDateText(date)), date);
  }
}

}  // namespace
}  // namespace tarnwell::workarea
