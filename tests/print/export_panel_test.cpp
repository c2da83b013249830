#include "print/export_panel.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::print {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kTable = "\tItem\r\n\tRent a b\r\n\t\r\n";

class ExportPanelTest : public ::testing::Test {
 protected:
  ExportPanelTest() {
    grid.SetColumns({{""}, {"Item"}}, 1);
    grid.SetRows(3);
    grid.SetText(1, 1, "Rent\ta\nb");
    rig.folders.readable["c:\\Tarnwell\\"] = {{"Sheets"}, {"Old.XLS", "notes.txt"}};
    rig.folders.readable["c:\\Tarnwell\\Sheets\\"] = {};
  }
  void Open() { panel.Open(grid, "Timeline.xls"); }
  void ExpectDone() {
    rig.dialogs.Expect("Export Function", "Export Completed to selected location!");
  }

  testing::FormRig rig;
  forms::Grid grid{rig.form, "VSGd1", "Sheet"};
  ExportPanel panel{rig.form, rig.context};
};

TEST_F(ExportPanelTest, OpensOnTheProgramsFolder) {
  Open();
  EXPECT_EQ(panel.path.caption(), "c:\\Tarnwell\\");
  EXPECT_EQ(panel.lines[0].caption(),
            "A non-formatted Spreadsheet File will be saved in the program folder:  \n\n"
            "c:\\Tarnwell\\");
  EXPECT_EQ(panel.lines[1].caption(), "With the following name:  Timeline.xls");
  EXPECT_EQ(panel.lines[2].caption(),
            "Note: If File already exists it will be replaced with this file!");
  EXPECT_EQ(panel.drives.text(), "c:");
  EXPECT_THAT(panel.folders.items(), ElementsAre("..", "Sheets"));
  EXPECT_THAT(panel.files.items(), ElementsAre("Old.XLS"));
}

TEST_F(ExportPanelTest, TheWholeGridGoesOutAsTabbedText) {
  Open();
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written["c:\\Tarnwell\\Timeline.xls"], kTable);
  panel.close.Click();
  EXPECT_FALSE(panel.is_open());
}

TEST_F(ExportPanelTest, AFailedWriteIsNotReported) {
  Open();
  rig.folders.refuse = true;
  ExpectDone();
  panel.save.Click();
}

TEST_F(ExportPanelTest, FoldersAreWalkedAndAFileOfferedIsReplaced) {
  Open();
  panel.files.Pick(0);
  EXPECT_EQ(panel.name.text(), "Old.XLS");
  panel.folders.Open(1);
  EXPECT_EQ(panel.path.caption(), "c:\\Tarnwell\\Sheets\\");
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written.count("c:\\Tarnwell\\Sheets\\Old.XLS"), 1u);
  panel.folders.Open(0);
  panel.folders.Open(0);
  EXPECT_EQ(panel.path.caption(), "c:\\");
  EXPECT_THAT(panel.folders.items(), ElementsAre("Tarnwell"));
}

TEST_F(ExportPanelTest, OnlyASpreadsheetsNameInThisFolderIsTaken) {
  Open();
  panel.name.Type("");
  EXPECT_FALSE(panel.save.enabled());
  for (const char* name :
       {"  ", "plan.txt", "xls", "plan.xlsx", "a\\b.xls", "d:a.xls", "../a.xls"}) {
    panel.name.Type(name);
    rig.dialogs.Expect("Export Error", "File Name is Missing or Incorrect");
    panel.save.Click();
  }
  EXPECT_THAT(rig.folders.written, IsEmpty());
  panel.name.Type(" plan.Xls ");
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written.count("c:\\Tarnwell\\plan.Xls"), 1u);
}

TEST_F(ExportPanelTest, AnExtensionIsSuppliedWhereTheScreenSaysSo) {
  ExportPanel budget(rig.form, rig.context, {.supply_extension = true});
  budget.Open(grid, "Budget2026");
  ExpectDone();
  budget.save.Click();
  EXPECT_EQ(rig.folders.written.count("c:\\Tarnwell\\Budget2026.xls"), 1u);
}

TEST_F(ExportPanelTest, ADriveOrFolderThatIsGoneLeadsBackToTheFirstDrive) {
  Open();
  rig.dialogs.Expect("Device/Drive Error", "Device/Drive is Unavailable!");
  panel.drives.Pick(1);
  EXPECT_EQ(panel.path.caption(), "c:\\");
  EXPECT_EQ(panel.drives.text(), "c:");
  EXPECT_TRUE(panel.save.enabled());

  rig.folders.readable.erase("c:\\Tarnwell\\");
  rig.dialogs.Expect("Device Status", "Device Unavailable!  ");
  panel.folders.Open(0);
  EXPECT_EQ(panel.path.caption(), "c:\\");

  rig.folders.readable.clear();
  rig.dialogs.Expect("Device/Drive Error", "Device/Drive is Unavailable!");
  rig.dialogs.Expect("Device Status", "Device Unavailable!  ");
  panel.drives.Pick(1);
  EXPECT_FALSE(panel.save.enabled());
  panel.name.Type("x.xls");
  EXPECT_FALSE(panel.save.enabled());
}

}  // namespace
}  // namespace tarnwell::print
