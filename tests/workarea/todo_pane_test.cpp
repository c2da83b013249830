#include "workarea/todo_pane.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/failing_file_system.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kListSaved = "To Do List Has Been Saved/Updated!";
constexpr const char* kLeaveTitle = "Select New Report - Insert Template";
constexpr const char* kLeaveText = "Save Current Document, etc. before next Action?";

class ToDoPaneTest : public WorkAreaTest {
 protected:
  void SetUp() override {
    WorkAreaTest::SetUp();
    Open(kToDoList);
  }
  ToDoPane& pane() { return hub().to_do; }
  forms::Grid& grid() { return pane().sheet.grid; }
  void Enter(int row, const std::string& item) { grid().EditCell(row, ToDoSheet::kItem, item); }
  std::vector<std::string> Items() {
    std::vector<std::string> items;
    for (const ToDoRow& row : pane().sheet.Rows()) {
      if (!IsBlank(row)) items.push_back(row.item);
    }
    return items;
  }
  std::vector<std::string> StoredItems() {
    std::vector<std::string> items;
    for (const ToDoRow& row : ReadToDoList(rig.folder).rows) {
      if (!IsBlank(row)) items.push_back(row.item);
    }
    return items;
  }
};

TEST_F(ToDoPaneTest, AnItemWithADateIsSavedAndItsNameKeptAtOnce) {
  EXPECT_TRUE(Button("SSCommand11(1)").selected());
  EXPECT_FALSE(hub().document.panel.visible());
  EXPECT_EQ(pane().date.caption(), "Date: March 9, 2026");
  grid().SelectCell(1, ToDoSheet::kItem);
  grid().TypeInCell("Order 15\" screen that is very much too long for it");
  grid().SelectCell(1, ToDoSheet::kToDo);
  EXPECT_EQ(rig.temporary.Read("TODONAME.FIL"),
            "\"Order 15' screen that is very much too long f\"\r\n");
  EXPECT_TRUE(pane().sheet.calendar.visible());
  pane().sheet.calendar.SelectDay(text::MakeDate(2026, 3, 12));
  EXPECT_FALSE(pane().sheet.calendar.visible());
  EXPECT_EQ(grid().text(1, ToDoSheet::kToDo), "Thu - Mar 12, 26");
  EXPECT_TRUE(pane().unsaved() && hub().unsaved());
  EXPECT_FALSE(hub().menus().Find("mF")->enabled());  // there is no document
  EXPECT_FALSE(rig.folder.Exists("TODOActv.FIL"));

  rig.dialogs.ExpectNote("File Save Command", kListSaved);
  pane().save.Click();
  pane().save.Click();  // nothing is unsaved
  EXPECT_FALSE(rig.folder.Exists("TODOActv.Fl2"));
  Enter(2, "second");
  rig.dialogs.ExpectNote("File Save Command", kListSaved);
  rig.ClickMenu("mOS");
  EXPECT_EQ(rig.temporary.Read("TODOActv.Fl2"), rig.temporary.Read("TODOActv.FIL"));
  Open(kToDoList);
  EXPECT_EQ(grid().text(1, ToDoSheet::kToDo), "Thu - Mar 12, 26");
  EXPECT_THAT(Items(), ElementsAre(HasSubstr("15' screen"), "second"));
  EXPECT_EQ(pane().names.items().size(), 2u);
}

TEST_F(ToDoPaneTest, TheCalendarStandsBesideTheCellAndOnItsDate) {
  Enter(1, "Pay rent");
  const struct {
    int column;
    const char* cell;
    double left;
    unsigned day;
  } cases[] = {{ToDoSheet::kToDo, "Mon - Mar 2, 26", 0.59, 2},
               {ToDoSheet::kActual, "due - 3/5/2026", 0.26, 5},
               {ToDoSheet::kReview, "3/5/2026", 0.46, 9}};
  for (const auto& c : cases) {
    grid().EditCell(1, c.column, c.cell);
    grid().SelectCell(1, ToDoSheet::kItem);
    EXPECT_FALSE(pane().sheet.calendar.visible());
    grid().SelectCell(1, c.column);
    EXPECT_TRUE(pane().sheet.calendar.visible());
    EXPECT_EQ(pane().sheet.calendar.date(), text::MakeDate(2026, 3, c.day)) << c.cell;
    EXPECT_EQ(pane().sheet.calendar_left(), c.left);
  }
  pane().sheet.calendar.Focus();
  EXPECT_TRUE(pane().sheet.calendar.visible());
  pane().names.Focus();
  EXPECT_FALSE(pane().sheet.calendar.visible());

  rig.dialogs.ExpectNote("Item Grid", "Please, enter an Item before any dates.");
  grid().SelectCell(7, ToDoSheet::kReview);
  EXPECT_EQ(grid().current(), (forms::GridPlace{2, ToDoSheet::kItem}));
  EXPECT_FALSE(pane().sheet.calendar.visible());
}

TEST_F(ToDoPaneTest, NamesCompleteGoIntoTheGridAndAreDeleted) {
  rig.temporary.Write("TODONAME.FIL", "\"Pay rent\"\r\n\"Order paper\"\r\n");
  Open(kToDoList);
  Enter(1, "first");
  pane().names.Type("pay");
  EXPECT_EQ(pane().names.text(), "pay rent");
  pane().add.Click();
  EXPECT_EQ(grid().current(), (forms::GridPlace{2, ToDoSheet::kItem}));
  EXPECT_THAT(Items(), ElementsAre("first", "Pay rent"));
  pane().delete_name.Click();
  EXPECT_EQ(pane().names.text(), "");
  EXPECT_EQ(rig.temporary.Read("TODONAME.FIL"), "\"Order paper\"\r\n\"first\"\r\n");
  for (int row = 3; row <= 500; ++row) grid().SetText(row, ToDoSheet::kItem, "x");
  pane().names.Pick(0);
  rig.dialogs.ExpectNote("Item Grid", "There is no empty row left in the grid!");
  pane().add.Click();
}

TEST_F(ToDoPaneTest, RowsAreDeletedClearedInsertedAndSorted) {
  Enter(1, "b");
  grid().EditCell(1, ToDoSheet::kToDo, "Mon - Mar 9, 26");
  Enter(2, "a");
  grid().EditCell(2, ToDoSheet::kToDo, "Tue - Feb 10, 26");
  grid().ClickHeading(ToDoSheet::kToDo);
  EXPECT_THAT(Items(), ElementsAre("a", "b"));
  grid().ClickHeading(ToDoSheet::kToDo);
  EXPECT_THAT(Items(), ElementsAre("b", "a"));
  grid().SelectCell(2, ToDoSheet::kItem);
  rig.ClickMenu("mOIns");
  EXPECT_EQ(grid().text(3, ToDoSheet::kItem), "a");
  for (const Answer answer : {Answer::kNo, Answer::kCancel, Answer::kYes}) {
    rig.dialogs.Expect(
        {"Delete Row", "Delete This Row?", forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
        answer);
    pane().delete_row.Click();
  }
  grid().SelectCell(1, ToDoSheet::kItem);
  rig.dialogs.Expect({"Delete Row", "Delete Activity and Dates for - \nb, Mon - Mar 9, 26?",
                      forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                     Answer::kYes);
  rig.ClickMenu("mODel");
  EXPECT_THAT(Items(), ElementsAre("a"));
  EXPECT_EQ(grid().rows(), 501);
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    rig.dialogs.Expect({"Clear Grid", "Do you really want To Clear the Grid?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       answer);
    rig.ClickMenu("mOClear");
  }
  EXPECT_THAT(Items(), ElementsAre());
  EXPECT_EQ(grid().text(500, 0), "500");
  grid().SetText(500, ToDoSheet::kItem, "last");
  rig.dialogs.ExpectWarning(
      "Insert Row", "The last row of the grid is filled and would be lost. Delete a row first.");
  rig.ClickMenu("mOIns");
}

TEST_F(ToDoPaneTest, EveryWayOutOfAnUnsavedListAsksAndCanBeTakenBack) {
  const std::function<void()> ways[] = {
      [&] { Press("SSCommand11(4)"); },
      [&] { Press("SSCommand19(0)"); },
      [&] { hub().main_buttons[parts::kToolsAndProgramInformation].Click(); },
  };
  int number = 0;
  for (const auto& leave : ways) {
    SCOPED_TRACE(++number);
    Open(kToDoList);
    grid().SelectCell(number, ToDoSheet::kItem);
    grid().TypeInCell("still being typed");
    rig.dialogs.ExpectYesNoCancel(kLeaveTitle, kLeaveText, Answer::kCancel);
    leave();
    EXPECT_TRUE(pane().panel.visible());
    EXPECT_TRUE(pane().unsaved());
    rig.dialogs.ExpectYesNoCancel(kLeaveTitle, kLeaveText, Answer::kYes);
    rig.dialogs.ExpectNote("File Save Command", kListSaved);
    leave();
    EXPECT_EQ(StoredItems().size(), static_cast<std::size_t>(number));
  }
  Open(kToDoList);
  Enter(1, "dropped");
  rig.dialogs.ExpectYesNoCancel(kLeaveTitle, kLeaveText, Answer::kNo);
  Press("SSCommand11(2)");
  EXPECT_FALSE(pane().panel.visible());
  EXPECT_TRUE(hub().document.panel.visible());
  Press("SSCommand11(1)");
  EXPECT_EQ(grid().text(1, ToDoSheet::kItem), "still being typed");
}

TEST_F(ToDoPaneTest, TheFilledRowsArePrintedExportedAndCopied) {
  const auto open_print = [&] { pane().print_options.Click(); };
  rig.dialogs.ExpectNote("Print", "There are currently No Entries to Print!");
  open_print();
  rig.dialogs.ExpectNote("Copy", "There are currently No Entries to Copy!");
  rig.ClickMenu("mOClip");
  Enter(1, "Pay rent");
  grid().SetText(3, ToDoSheet::kReview, "later");
  open_print();
  auto& print = hub().printing.print;
  EXPECT_TRUE(print.as_of->visible());
  EXPECT_FALSE(hub().printing.texts[0].visible());
  print.print.Click();
  EXPECT_THAT(testing::TextsOf(rig.pages.printed.back().pages.at(0)),
              ElementsAre("As of  March 09, 2026", "Printed:  March 9, 2026",
                          "Project Timeline/To Do List", "To Do Item", "To Do Date", "Actual Date",
                          "Next Review Date", "Pay rent", "later"));
  const auto marks = rig.pages.printed.back().pages.at(0).size();
  print.grid_lines->Check(true);
  print.print.Click();
  EXPECT_GT(rig.pages.printed.back().pages.at(0).size(), marks);
  print.close.Click();

  rig.dialogs.ExpectNote("Copy Option", "A copy has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOClip");
  EXPECT_EQ(rig.clipboard.text,
            "To Do Item\tTo Do Date\tActual Date\tNext Review Date\r\n"
            "Pay rent\t\t\t\r\n\t\t\tlater\r\n");

  rig.ClickMenu("mUExport");
  EXPECT_FALSE(hub().areas.visible());
  rig.dialogs.ExpectNote("Export Function", "Export Completed to selected location!");
  pane().exporting.save.Click();
  const std::string exported = rig.folders.written["/home/ann/Tarnwell/Timeline.xls"];
  EXPECT_EQ(std::ranges::count(exported, '\n'), 501);
  EXPECT_THAT(exported, HasSubstr("\r\n1\tPay rent\t\t\t\t\r\n2\t"));
  pane().exporting.close.Click();
}

TEST_F(ToDoPaneTest, ACheckedItemTakesItsNameAlong) {
  Enter(1, "Cal teh bank");
  Enter(2, "fine");
  rig.speller.misspelled = {{"teh", {}}};
  rig.dialogs.ExpectNote("Spell Check",
                         "Spell Check has been canceled or has reached the end of your entries");
  pane().spelling.Click();
  EXPECT_THAT(Items(), ElementsAre("Cal the bank", "fine"));
  EXPECT_EQ(rig.temporary.Read("TODONAME.FIL"), "\"Cal the bank\"\r\n\"fine\"\r\n");
  EXPECT_EQ(hub().status(), "1 word corrected");
  rig.dialogs.ExpectNote("Spell Check",
                         "Spell Check did not change or did not find any misspelled words!");
  pane().spelling.Click();
}

TEST_F(ToDoPaneTest, WhatCantBeReadIsLockedAndLeftAsItIs) {
  for (const char* name : {"TODOActv.FIL", "TODONAME.FIL"}) {
    std::filesystem::create_directory(rig.temporary.path() + "/" + name);
    Open(kToDoList);
    const bool is_list = std::string(name) == "TODOActv.FIL";
    EXPECT_EQ(grid().enabled(), !is_list);
    EXPECT_EQ(pane().save.enabled(), !is_list);
    EXPECT_EQ(pane().names.enabled(), is_list);
    EXPECT_EQ(hub().status(), std::string(is_list ? "The To Do list" : "The list of names") +
                                  " can't be read: something else has the name of its file.");
    Enter(1, "item");
    EXPECT_EQ(pane().unsaved(), !is_list);
    if (is_list) std::filesystem::remove(rig.temporary.path() + "/" + name);
  }
}

TEST_F(ToDoPaneTest, WhatTheDiskRefusesStaysUnsavedOnTheScreen) {
  testing::FailingFileSystem files(storage::RealFileSystem());
  testing::ProgramRig full(files);
  full.temporary.Write("TODOActv.FIL", "\"old\"\r\n");
  full.temporary.Write("TODONAME.FIL", "\"old\"\r\n");
  full.Start();
  full.Get<shell::Startfrm>("Startfrm").begin.Click();
  ToDoPane& list = full.Get<WorkArea1>("WorkArea1").to_do;
  files.MakeReadOnly();
  full.dialogs.ExpectError("Not Saved",
                           "The list of names could not be saved: the disk is read-only.\n"
                           "The item stands in the grid alone.");
  list.sheet.grid.EditCell(2, ToDoSheet::kItem, "new");
  EXPECT_EQ(list.names.items().size(), 1u);
  full.dialogs.ExpectError("Not Saved",
                           "The list of names could not be saved: the disk is read-only.\n"
                           "The item stays in it.");
  list.names.Pick(0);
  list.delete_name.Click();
  EXPECT_EQ(list.names.items().size(), 1u);
  files.MakeReadOnly(false);
  for (int call = 1; call < 6; ++call) {
    for (const char* way : {"mOS", "button"}) {
      SCOPED_TRACE(std::string(way) + " " + std::to_string(call));
      files.FailFrom(files.calls() + call);
      full.dialogs.ExpectError("Not Saved",
                               "The To Do list could not be saved: the disk reported an error.\n"
                               "It is still on the screen.");
      std::string(way) == "mOS" ? full.ClickMenu(way) : list.save.Click();
      files.Recover();
      EXPECT_TRUE(list.unsaved());
      EXPECT_EQ(full.temporary.Read("TODOActv.FIL"), "\"old\"\r\n");
    }
  }
  full.dialogs.ExpectNote("File Save Command", kListSaved);
  list.save.Click();
  EXPECT_THAT(full.temporary.Read("TODOActv.FIL"), HasSubstr("\"new\""));
}

}  // namespace
}  // namespace tarnwell::workarea
