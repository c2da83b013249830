#include "parts/export_panel.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::parts {
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
    rig.folders.readable["/home/ann/Tarnwell/"] = {{"Sheets"}, {"Old.XLS", "notes.txt"}};
    rig.folders.readable["/home/ann/Tarnwell/Sheets/"] = {};
  }
  void Open() { panel.Open(grid, "Timeline.xls"); }
  void ExpectDone() {
    rig.dialogs.ExpectNote("Export Function", "Export Completed to selected location!");
  }

  testing::FormRig rig;
  forms::Grid grid{rig.form, "VSGd1", "Sheet"};
  ExportPanel panel{rig.form, rig.context};
};

TEST_F(ExportPanelTest, OpensOnTheProgramsFolder) {
  Open();
  EXPECT_EQ(panel.chooser.path.caption(), "/home/ann/Tarnwell/");
  EXPECT_EQ(panel.folder_line.caption(),
            "A non-formatted Spreadsheet File will be saved in the program folder:  \n\n"
            "/home/ann/Tarnwell/");
  EXPECT_EQ(panel.name_line.caption(), "With the following name:  Timeline.xls");
  EXPECT_EQ(panel.replace_line.caption(),
            "Note: If File already exists it will be replaced with this file!");
  EXPECT_EQ(panel.chooser.drives.text(), "/home/ann");
  EXPECT_THAT(panel.chooser.folders.items(), ElementsAre("..", "Sheets"));
  EXPECT_THAT(panel.chooser.files.items(), ElementsAre("Old.XLS"));
}

TEST_F(ExportPanelTest, TheWholeGridGoesOutAsTabbedText) {
  Open();
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written["/home/ann/Tarnwell/Timeline.xls"], kTable);
  panel.close.Click();
  EXPECT_FALSE(panel.is_open());
}

TEST_F(ExportPanelTest, AFailedWriteIsToldInPlaceOfTheConfirmation) {
  Open();
  rig.folders.refuse = true;
  rig.dialogs.ExpectError("Not Saved",
                          "The file Timeline.xls could not be saved: the disk is full.\n"
                          "It is still on the screen.");
  panel.save.Click();
  EXPECT_TRUE(panel.is_open());
}

TEST_F(ExportPanelTest, FoldersAreWalkedAndAFileOfferedIsReplaced) {
  Open();
  panel.chooser.files.Pick(0);
  EXPECT_EQ(panel.name.text(), "Old.XLS");
  panel.chooser.folders.Open(1);
  EXPECT_EQ(panel.chooser.path.caption(), "/home/ann/Tarnwell/Sheets/");
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written.count("/home/ann/Tarnwell/Sheets/Old.XLS"), 1u);
  panel.chooser.folders.Open(0);
  panel.chooser.folders.Open(0);
  EXPECT_EQ(panel.chooser.path.caption(), "/home/ann/");
  EXPECT_THAT(panel.chooser.folders.items(), ElementsAre("..", "Tarnwell"));
}

TEST_F(ExportPanelTest, OnlyASpreadsheetsNameInThisFolderIsTaken) {
  Open();
  panel.name.Type("");
  EXPECT_FALSE(panel.save.enabled());
  for (const char* name :
       {"  ", "plan.txt", "xls", "plan.xlsx", "a\\b.xls", "d:a.xls", "../a.xls"}) {
    panel.name.Type(name);
    rig.dialogs.ExpectError("Export Error", "File Name is Missing or Incorrect");
    panel.save.Click();
  }
  EXPECT_THAT(rig.folders.written, IsEmpty());
  panel.name.Type(" plan.Xls ");
  ExpectDone();
  panel.save.Click();
  EXPECT_EQ(rig.folders.written.count("/home/ann/Tarnwell/plan.Xls"), 1u);
}

TEST_F(ExportPanelTest, AnExtensionIsSuppliedWhereTheScreenSaysSo) {
  ExportPanel budget(rig.form, rig.context, {.supply_extension = true});
  budget.Open(grid, "Budget2026");
  ExpectDone();
  budget.save.Click();
  EXPECT_EQ(rig.folders.written.count("/home/ann/Tarnwell/Budget2026.xls"), 1u);
}

TEST_F(ExportPanelTest, ADriveOrFolderThatIsGoneLeadsBackToTheProgramsFolder) {
  rig.folders.readable["/"] = {{"home"}, {}};
  Open();
  panel.chooser.drives.Pick(2);
  EXPECT_EQ(panel.chooser.path.caption(), "/");
  rig.dialogs.ExpectError("Device/Drive Error", "Device/Drive is Unavailable!");
  panel.chooser.drives.Pick(1);
  EXPECT_EQ(panel.chooser.path.caption(), "/home/ann/Tarnwell/");
  EXPECT_EQ(panel.chooser.drives.text(), "/home/ann");
  EXPECT_TRUE(panel.save.enabled());

  rig.folders.readable.erase("/home/ann/Tarnwell/Sheets/");
  rig.dialogs.ExpectWarning("Device Status", "Device Unavailable!  ");
  panel.chooser.folders.Open(1);
  EXPECT_EQ(panel.chooser.path.caption(), "/home/ann/Tarnwell/");

  rig.folders.readable.clear();
  rig.dialogs.ExpectError("Device/Drive Error", "Device/Drive is Unavailable!");
  rig.dialogs.ExpectWarning("Device Status", "Device Unavailable!  ");
  panel.chooser.drives.Pick(1);
  EXPECT_FALSE(panel.save.enabled());
  panel.name.Type("x.xls");
  EXPECT_FALSE(panel.save.enabled());
}

}  // namespace
}  // namespace tarnwell::parts
