#include <gmock/gmock.h>

#include "vehicles/automaint_rig.h"

namespace tarnwell::vehicles {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST_F(AutoMaintTest, AVehicleIsCreatedStepByStep) {
  EXPECT_EQ(form().caption(), "Company Data - Company Vehicle Maintenance Tracker");
  EXPECT_EQ(form().today.caption(), "Today's Date: 3/9/2026");
  form().create.Click();
  EXPECT_EQ(form().information.captions[0]->caption(), "Enter File Name:");
  EXPECT_EQ(form().information.years.text(), "2026");
  EXPECT_EQ(form().information.makes.text(), "Acura");
  rig.dialogs.ExpectWarning("Missing Auto File Name",
                            "Please Enter File Name before proceeding further!");
  form().next_to_schedule.Click();
  EXPECT_TRUE(field(0).focused());
  field(0).Type("Empty nest van");
  rig.dialogs.ExpectWarning(
      "Auto File Name",
      "A File Name can't begin with \"EMPTY\", which marks a free place in the list!");
  form().next_to_schedule.Click();
  field(0).Type("Van \"2\"");
  EXPECT_EQ(field(0).text(), "Van '2'");
  rig.dialogs.ExpectWarning("Missing Make or Model Name",
                            "Please Enter Make or Model Name before proceeding further!");
  form().next_to_schedule.Click();
  form().information.makes.Pick(1);
  EXPECT_THAT(form().information.models.items(), ElementsAre("E150 Van"));
  form().information.models.Pick(0);
  EXPECT_EQ(field(kModel).text(), "E150 Van");
  form().information.makes.Pick(0);
  EXPECT_EQ(field(kModel).text(), "");
  rig.dialogs.ExpectWarning("Missing Odometer Reading",
                            "Please Enter Current Odometer Reading before proceeding further!");
  form().next_to_schedule.Click();
  field(kOdometer).Type("12,000 mi");
  form().next_to_schedule.Click();
  EXPECT_EQ(field(kOdometer).text(), "12,000");
  EXPECT_TRUE(form().maintenance.panel.visible());
  EXPECT_EQ(form().maintenance.intervals.caption(), "Interval Between Actions*");
  EXPECT_EQ(schedule().text(4, 1) + schedule().text(4, 2) + schedule().text(4, 3),
            "Replace Air Filter30,00024");
  schedule().EditCell(1, 2, "4000");
  form().view_information.Click();
  form().next_to_schedule.Click();
  EXPECT_EQ(schedule().text(1, 2), "4,000");
  form().next_to_repairs.Click();
  EXPECT_FALSE(form().save.visible());
  rig.dialogs.ExpectYesNoCancel(
      "Create New File", "New file will be saved as:\nVan '2'\nIs that correct?", Answer::kCancel);
  rig.ClickMenu("mOS");
  EXPECT_TRUE(field(0).focused());
  form().next_to_schedule.Click();
  Finish("Van '2'");
  EXPECT_THAT(form().files.items(), ElementsAre("Van '2'"));
  EXPECT_FALSE(form().unsaved());
  EXPECT_THAT(File("ACar1.Fil"), StartsWith("\"NEWW\"\r\n\"\"\r\n\"Acura\"\r\n\"\"\r\n\"12,000\""));
  EXPECT_EQ(File("MCar1.Fil") + File("RCar1.Fil") + File("GCar1.Fil"),
            "\" \"\r\n\" \"\r\n\" \"\r\n");
}

TEST_F(AutoMaintTest, WhatIsDueShowsAsItIsTyped) {
  Make("Van", "13000");
  ShowMaintenance();
  schedule().EditCell(1, MaintenancePane::kOdometer, "10,000");
  EXPECT_EQ(schedule().text(1, MaintenancePane::kDistanceLeft), "");
  EXPECT_EQ(schedule().text(1, MaintenancePane::kRequired), "Action Req.");
  EXPECT_TRUE(schedule().style(1, MaintenancePane::kRequired).bold);
  for (int column :
       {MaintenancePane::kAction, MaintenancePane::kDistanceLeft, MaintenancePane::kRequired}) {
    EXPECT_EQ(schedule().style(1, column).color, forms::Color{0x0000FF}) << column;
  }
  ExpectEntryError("The Date entry Cannot Exceed the Current Date!");
  schedule().EditCell(1, MaintenancePane::kDate, "12/10");
  EXPECT_EQ(schedule().text(1, MaintenancePane::kDate), "") << "a day of this year is to come";
}

TEST_F(AutoMaintTest, EntriesOfTheScheduleAreChecked) {
  Make("Van", "13000");
  ShowMaintenance();
  ExpectEntryError("The Mileage entry Cannot Exceed the Current Odometer Reading!");
  schedule().EditCell(2, MaintenancePane::kOdometer, "13,001");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kOdometer), "");
  EXPECT_EQ(schedule().current(), (forms::GridPlace{2, MaintenancePane::kOdometer}));
  ExpectEntryError("Invalid Date Entered!");
  schedule().EditCell(2, MaintenancePane::kDate, "soon");
  ExpectEntryError("The Date entry Cannot Exceed the Current Date!");
  schedule().EditCell(2, MaintenancePane::kDate, "3/10/2026");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kDate), "");
  schedule().EditCell(2, MaintenancePane::kDate, "3/9");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kDate), "3/9/2026");
  rig.ClickMenu("DisableDateChecker(0)");
  schedule().EditCell(2, MaintenancePane::kDate, "Mar. 10, 2026");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kDate), "3/10/2026");
  schedule().EditCell(2, MaintenancePane::kCost, "1,234.5");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kCost), "$1,234.50");
  schedule().EditCell(2, MaintenancePane::kCost, "-3");
  EXPECT_EQ(schedule().text(2, MaintenancePane::kCost), "");
  schedule().EditCell(3, MaintenancePane::kAction, "Wash");
  EXPECT_EQ(schedule().text(3, MaintenancePane::kAction), "Inspect Brake Linings");
  schedule().EditCell(9, MaintenancePane::kAction, "Wash");
  schedule().EditCell(8, MaintenancePane::kMonths, "3");
  rig.dialogs.Expect({"Remove Blank Action Rows",
                      "There are rows without an action that hold other entries.\n"
                      "Remove them too?",
                      forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                     Answer::kNo);
  rig.ClickMenu("mERemove");
  EXPECT_EQ(schedule().text(9, MaintenancePane::kAction), "Wash");
  schedule().EditCell(8, MaintenancePane::kMonths, "");
  rig.ClickMenu("mERemove");
  EXPECT_EQ(schedule().text(8, MaintenancePane::kAction), "Wash");
}

TEST_F(AutoMaintTest, ADoneActionEntersTheHistoryOnceThoughDatesTurn) {
  Make("Van", "13000");
  ShowMaintenance();
  schedule().EditCell(1, MaintenancePane::kOdometer, "10000");
  schedule().EditCell(1, MaintenancePane::kDate, "3/5/2026");
  schedule().EditCell(1, MaintenancePane::kCost, "25");
  form().save.Click();
  const std::string once =
      "\"10,000\"\r\n\"3/5/2026\"\r\n\"Changed Oil and Filter\"\r\n\"$25.00\"\r\n";
  EXPECT_EQ(File("MCar1.Fil"), once);
  form().save.Click();
  EXPECT_EQ(File("MCar1.Fil"), once);
  form().view.Click();
  const forms::GridCellStyle style = schedule().style(1, MaintenancePane::kDate);
  EXPECT_EQ(schedule().text(1, MaintenancePane::kDate), "5/3/2026");
  EXPECT_EQ(style.note, "read as 5/3/2026, in the file 3/5/2026");
  EXPECT_FALSE(form().unsaved());
  schedule().SelectCell(1, MaintenancePane::kDate);
  EXPECT_EQ(form().status(), style.note);
  form().save.Click();
  EXPECT_EQ(schedule().style(1, MaintenancePane::kDate).note, "");
  EXPECT_EQ(File("MCar1.Fil"),
            "\"10,000\"\r\n\"5/3/2026\"\r\n\"Changed Oil and Filter\"\r\n\"$25.00\"\r\n");
}

TEST_F(AutoMaintTest, RepairsAreKeptAndTakenOutThroughTheHistory) {
  Make("Van", "13000");
  form().view_repairs.Click();
  ExpectEntryError("The Mileage entry Cannot Exceed the Current Odometer Reading!");
  repairs().EditCell(1, RepairsPane::kOdometer, "14000");
  repairs().EditCell(1, RepairsPane::kOdometer, "12,500");
  EXPECT_EQ(repairs().text(1, RepairsPane::kOdometer), "12,500       ");
  repairs().EditCell(1, RepairsPane::kDate, "3/13/2025");
  repairs().EditCell(1, RepairsPane::kText, "Clutch");
  repairs().EditCell(1, RepairsPane::kCost, "450");
  repairs().EditCell(2, RepairsPane::kOdometer, "11000");
  repairs().EditCell(2, RepairsPane::kText, "Tires");
  repairs().EditCell(2, RepairsPane::kCost, "300.25");
  ExpectSaveQuestion(Answer::kYes);
  form().view_history.Click();
  EXPECT_EQ(File("RCar1.Fil"),
            "\"11,000\"\r\n\"\"\r\n\"Tires\"\r\n\"$300.25\"\r\n"
            "\"12,500\"\r\n\"3/13/2025\"\r\n\"Clutch\"\r\n\"$450.00\"\r\n");
  EXPECT_EQ(form().history.sum.caption(), "$750.25  ");
  EXPECT_EQ(form().history.grid.text(2, HistoryPane::kOdometer), "       12,500");
  rig.dialogs.ExpectNote("Entry Selection",
                         "If you are trying to select an Entry to Delete,\n"
                         "Please first Select the Maint. History or the\n"
                         "Rep/Exp Hist View Button.\n"
                         "Deletions can only be done in these two files!");
  form().history.grid.SelectCell(2, 0);
  form().history.grid.SelectCell(1, 0);  // isn't told again
  form().history.repairs.Click();
  form().history.grid.SelectCell(2, 0);
  const forms::MessageBox question{
      "Delete Selected Entry",
      "Do You really want to delete the\n selected entry from this Auto file?",
      forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2};
  rig.dialogs.Expect(question, Answer::kNo);
  form().history.remove.Click();
  EXPECT_THAT(File("RCar1.Fil"), HasSubstr("Clutch"));
  rig.dialogs.Expect(question, Answer::kYes);
  form().history.remove.Click();
  EXPECT_THAT(File("RCar1.Fil"), Not(HasSubstr("Clutch")));
  EXPECT_EQ(repairs().text(2, RepairsPane::kText), "");
  rig.dialogs.ExpectNote("View Maintenance History",
                         "There is currently no Maintenance History to View!");
  form().history.maintenance.Click();
}

TEST_F(AutoMaintTest, FuelIsComputedWhereTheCursorGoes) {
  Make("Van", "13000");
  form().view_fuel.Click();
  fuel().EditCell(1, kFuelDate, "3/9");
  EXPECT_EQ(fuel().current(), (forms::GridPlace{1, kPrevious}));
  fuel().EditCell(1, kPrevious, "12000");
  fuel().EditCell(1, kCurrent, "12,300");
  fuel().SelectCell(1, kDriven);
  EXPECT_EQ(fuel().text(1, kDriven), "300      ");
  EXPECT_EQ(fuel().current(), (forms::GridPlace{1, kFuel}));
  fuel().EditCell(1, kFuel, "15");
  fuel().SelectCell(1, kRate);
  EXPECT_EQ(fuel().text(1, kRate), "20.00        ");
  fuel().EditCell(1, kCost, "45");
  EXPECT_EQ(form().fuel.cost.caption(), "$45.00     ");
  EXPECT_EQ(form().fuel.rate.caption(), "20.00        ");
  fuel().SelectCell(2, kPrevious);
  EXPECT_THAT(fuel().column(kPrevious).choices, ElementsAre("12,300"));
  form().save.Click();
  EXPECT_EQ(File("GCar1.Fil"),
            "\"3/9/2026\"\r\n\"12,000\"\r\n\"12,300\"\r\n\"300\"\r\n\"15.00\"\r\n\"20.00\"\r\n"
            "\"$45.00\"\r\n");
  fuel().SelectCell(1, kCost);
  rig.dialogs.Expect({"Delete Fuel Entry", "Do you really want to delete the highlighted Entry?",
                      forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                     Answer::kYes);
  form().fuel.remove.Click();
  EXPECT_EQ(File("GCar1.Fil"), "\" \"\r\n");
}

TEST_F(AutoMaintTest, FuelBehindAHundredBlankRowsIsNotLostUnasked) {
  Make("Van", "13000");
  std::string lines;
  for (int i = 0; i < 100 * 7; ++i) lines += "\"\"\r\n";
  for (int i = 0; i < 7; ++i) lines += "\"1\"\r\n";
  rig.temporary.Write("GCar1.Fil", lines);
  form().view.Click();
  const forms::MessageBox question{"Fuel Mileage Tracker",
                                   "There are entries behind 100 blank rows, which are not saved "
                                   "there.\nMove them up, so that they are saved too?",
                                   forms::Icon::kQuestion, forms::Buttons::kYesNoCancel};
  rig.dialogs.Expect(question, Answer::kCancel);
  form().save.Click();
  EXPECT_EQ(File("GCar1.Fil"), lines);
  rig.dialogs.Expect(question, Answer::kYes);
  form().save.Click();
  EXPECT_THAT(File("GCar1.Fil"), StartsWith("\"1\"\r\n"));
}

}  // namespace
}  // namespace tarnwell::vehicles
