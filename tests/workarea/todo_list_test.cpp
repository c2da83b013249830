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
  ToDoNames names;
  names.Read(folder);
  EXPECT_FALSE(names.is_readable());
  EXPECT_FALSE(names.Add("Pay rent"));
  EXPECT_FALSE(names.Write(folder));
}

TEST_F(ToDoListTest, NamesAreKeptOnceInTheOrderInWhichTheyCame) {
  ToDoNames names;
  names.Read(folder);
  EXPECT_TRUE(names.Add("Pay rent"));
  EXPECT_TRUE(names.Add("Order paper"));
  for (const char* known : {"PAY RENT", "pay rent  ", "", "  "}) EXPECT_FALSE(names.Add(known));
  ASSERT_TRUE(names.WriteWithMarker(folder));
  EXPECT_EQ(disk.Read("TODONAME.FIL"), FileOf(ReadFormatExample("todoname.md")));
  EXPECT_EQ(disk.Read("Location.Fil"), "\" \"\r\n");

  EXPECT_TRUE(names.Add("Order papr"));
  EXPECT_TRUE(names.Correct("order papr", "Order paper")) << "falls together";
  EXPECT_TRUE(names.Correct("Pay rent", "Pay Rent"));
  EXPECT_THAT(names.names(), ElementsAre("Pay Rent", "Order paper"));
  EXPECT_TRUE(names.Remove(" pay rent "));
  EXPECT_FALSE(names.Remove("pay rent"));
  EXPECT_THAT(names.names(), ElementsAre("Order paper"));

  disk.Write("TODONAME.FIL", "\" \"\r\n\"Old\"\r\n");
  names.Read(folder);
  EXPECT_THAT(names.names(), ElementsAre("Old"));
  for (int i = 1; i < 1000; ++i) EXPECT_TRUE(names.Add(std::to_string(i)));
  EXPECT_FALSE(names.Add("the 1001st"));
  EXPECT_EQ(names.names().size(), 1000u);
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
