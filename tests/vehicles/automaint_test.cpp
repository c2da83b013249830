#include "vehicles/automaint.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::vehicles {
namespace {

using forms::Answer;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kTitle = "Company Vehicle Maintenance Tracker";
constexpr const char* kSaveText =
    "Save changes made to Auto Maintenance before next action or exiting?";

std::string Entries(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i)
    lines += "\"1,000\"\r\n\"3/13/2026\"\r\n\"Toll\"\r\n\"$1.00\"\r\n";
  return lines;
}

// On March 9, 2026.
class AutoMaintTest : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.temporary.Write("Makes.Dat", "Acura\n  CL\n  Z - Not Listed\nFord\n  E150 Van\n");
    Open();
  }
  void Open() {
    rig.Start();
    rig.navigator().Show("AutoMaint");
  }
  AutoMaint& form() { return rig.Get<AutoMaint>("AutoMaint"); }
  forms::TextField& field(std::size_t index) { return *form().information.fields[index]; }
  forms::Grid& schedule() { return form().maintenance.grid; }
  forms::Grid& repairs() { return form().repairs.grid; }
  forms::Grid& fuel() { return form().fuel.grid; }
  std::string File(const std::string& name) { return rig.temporary.Read(name); }

  void Enter(const char* name, const char* odometer = "12000") {
    form().create.Click();
    field(0).Type(name);
    form().information.makes.Pick(1);
    form().information.models.Pick(0);
    field(kOdometer).Type(odometer);
    form().next_to_schedule.Click();
  }
  void Finish(const char* name) {
    rig.dialogs.ExpectYesNoCancel(
        "Create New File",
        "New file will be saved as:\n" + std::string(name) + "\nIs that correct?", Answer::kYes);
    form().finish.Click();
  }
  void Make(const char* name, const char* odometer = "12000") {
    Enter(name, odometer);
    Finish(name);
  }
  void ExpectSaveQuestion(Answer answer) {
    rig.dialogs.ExpectYesNoCancel(kTitle, kSaveText, answer);
  }
  void ExpectEntryError(const char* text) { rig.dialogs.ExpectWarning("Entry Error", text); }
  void ShowMaintenance() { form().view_maintenance.Click(); }
  std::vector<std::string> PrintedTexts() {
    form().print.panel.print.Click();
    std::vector<std::string> texts;
    for (const forms::Page& page : rig.pages.printed.back().pages) {
      for (const forms::Mark& mark : page) {
        if (const auto* text = std::get_if<forms::PlacedText>(&mark)) texts.push_back(text->text);
      }
    }
    return texts;
  }

  testing::FailingFileSystem disk{storage::RealFileSystem()};
  testing::ProgramRig rig{disk};
};

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

TEST_F(AutoMaintTest, AHistoryThatIsTooLongIsNeverWritten) {
  Make("Van", "13000");
  const std::string lines = Entries(6001);
  rig.temporary.Write("MCar1.Fil", lines);
  rig.temporary.Write("RCar1.Fil", lines);
  form().view.Click();
  EXPECT_EQ(form().status(),
            "More entries than can be shown: maintenance history and repairs. What is shown can't "
            "be changed.");
  EXPECT_FALSE(repairs().enabled());
  ShowMaintenance();
  schedule().EditCell(1, MaintenancePane::kOdometer, "10000");
  form().save.Click();
  EXPECT_EQ(form().status(), "The vehicle has been saved, but its maintenance history is full.");
  EXPECT_EQ(File("MCar1.Fil"), lines);
  EXPECT_EQ(File("RCar1.Fil"), lines);
}

TEST_F(AutoMaintTest, AVehicleThatCantBeReadCantBeChanged) {
  Make("Van");
  for (const char* name : {"ACar1.Fil", "MCar1.Fil", "RCar1.Fil", "GCar1.Fil"}) {
    const std::string path = rig.temporary.path() + "/" + name;
    const std::string content = File(name);
    rig.temporary.Remove(name);
    std::filesystem::create_directory(path);
    rig.dialogs.ExpectError("Can't Be Read",
                            "The vehicle can't be read: something else has the name of its file.\n"
                            "Nothing will be written over it.");
    form().view.Click();
    for (forms::Control* control : form().AllControls()) {
      if (dynamic_cast<forms::TextField*>(control) && control->LiesIn(form().sheet)) {
        EXPECT_FALSE(control->enabled()) << control->name();
      }
    }
    EXPECT_FALSE(schedule().enabled() || repairs().enabled() || fuel().enabled());
    EXPECT_FALSE(form().information.choose_picture.enabled() || form().information.makes.enabled());
    rig.dialogs.ExpectWarning("Select Auto File Name", "Please Select an Auto File Name First!");
    form().save.Click();
    std::filesystem::remove(path);
    rig.temporary.Write(name, content);
  }
}

TEST_F(AutoMaintTest, ChangesAreOfferedForSavingAndAFullDiskKeepsThem) {
  Make("Van");
  form().view_information.Click();
  field(kVin).Type("1FT");
  ExpectSaveQuestion(Answer::kCancel);
  form().view_fuel.Click();
  EXPECT_FALSE(form().fuel.panel.visible());
  ExpectSaveQuestion(Answer::kNo);
  form().view_fuel.Click();
  EXPECT_EQ(field(kVin).text(), "1FT");
  EXPECT_TRUE(form().unsaved());
  form().view_maintenance.Click();  // isn't asked about again
  rig.dialogs.ExpectYesNoCancel("Company Vehicle Maintenance Tracker Information",
                                "Save changes made to Auto Maintenance before exiting?",
                                Answer::kCancel);
  form().exit.Click();
  disk.AllowBytes(0);
  rig.dialogs.ExpectError("Not Saved",
                          "The vehicle could not be saved: the disk is full.\n"
                          "It is still on the screen.");
  form().save.Click();
  EXPECT_TRUE(form().unsaved());
  EXPECT_THAT(File("ACar1.Fil"), Not(HasSubstr("1FT")));
}

TEST_F(AutoMaintTest, DeletingAVehicleFreesItsSlot) {
  Make("Van");
  Make("Truck");
  EXPECT_THAT(form().files.items(), ElementsAre("Van", "Truck"));
  form().files.Pick(0);
  const forms::MessageBox question{"Delete Current File",
                                   "Do You really want to delete\nVan\n file and all its contents?",
                                   forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2};
  rig.dialogs.Expect(question, Answer::kCancel);
  form().remove.Click();
  rig.dialogs.Expect(question, Answer::kYes);
  form().remove.Click();
  EXPECT_THAT(form().files.items(), ElementsAre("Truck"));
  EXPECT_EQ(field(kMake).text(), "");
  EXPECT_EQ(File("ACar1.Fil"), "\"  \"\r\n");
  Make("Bus");
  EXPECT_THAT(form().files.items(), ElementsAre("Bus", "Truck"));
}

TEST_F(AutoMaintTest, TheOlderLayoutIsSavedInThePresentOne) {
  Make("Van");
  rig.temporary.Write("ACar1.Fil", "\"1998\"\r\n\"Geo\"\r\n");
  form().view.Click();
  EXPECT_EQ(field(kMake).text(), "Geo");
  EXPECT_THAT(File("ACar1.Fil"), StartsWith("\"NEWW\"\r\n\"1998\"\r\n\"Geo\"\r\n"));
  EXPECT_EQ(File("ACar1.Fil.old"), "\"1998\"\r\n\"Geo\"\r\n");
}

TEST_F(AutoMaintTest, WordsFollowTheUnitAndNumbersStay) {
  Make("Van", "13000");
  rig.ClickMenu("mOProgKilo");
  EXPECT_EQ(schedule().column(MaintenancePane::kOdometer).title, "Last Action\nKilometers");
  EXPECT_EQ(schedule().text(1, MaintenancePane::kDistance), "3,000");
  EXPECT_EQ(form().fuel.title.caption(), "Fuel Kilometer Tracker");
  EXPECT_FALSE(form().menus().Find("mOGas")->visible());
  Open();
  EXPECT_TRUE(form().menus().Find("mOProgKilo")->checked());
  Enter("Truck");
  EXPECT_EQ(schedule().text(1, MaintenancePane::kDistance), "5,000");
}

TEST_F(AutoMaintTest, TheCalculatorNeedsADistance) {
  rig.ClickMenu("mOGas");
  CalculatorPanel& panel = form().calculator;
  panel.previous.Type("12,300");
  ExpectEntryError(
      "Both Current and Previous Odometer Readings must\nbe entered or Miles Driven enter before "
      "entering Gallons of Gas!");
  panel.fuel.Type("1");
  EXPECT_TRUE(panel.current.focused());
  panel.current.Type("12000");
  panel.fuel.Type("15");
  EXPECT_EQ(panel.driven.text(), "300");
  EXPECT_EQ(panel.rate.caption(), "20.");
  panel.fuel.Type("15x");
  EXPECT_EQ(panel.fuel.text(), "15");
  panel.current.Type("12,600");
  EXPECT_EQ(panel.driven.text(), "");
  panel.close.Click();
  EXPECT_EQ(panel.fuel.text(), "");
}

TEST_F(AutoMaintTest, AVehicleIsPrintedInTheSectionsTicked) {
  Make("Van", "13000");
  ShowMaintenance();
  schedule().EditCell(1, MaintenancePane::kOdometer, "10000");
  schedule().EditCell(1, MaintenancePane::kCost, "25");
  form().save.Click();
  form().print_options.Click();
  EXPECT_FALSE(form().print.fuel.enabled() || form().print.repairs.enabled());
  const std::vector<std::string> texts = PrintedTexts();
  for (const char* text :
       {" Ford E150 Van (Van)", "Printed: Monday, March 09, 2026", "Information",
        "  Insurance Information", "Make: Ford", "Maintenance", "Interval Between Actions",
        "Change Oil and Filter", "Action Req.", "Maintenance History", "Changed Oil and Filter",
        "Maintenance Total Cost:  $25.00", "Maintenance, Repair and Expenditure History"}) {
    EXPECT_THAT(texts, Contains(text));
  }
  EXPECT_THAT(texts, Not(Contains("Fuel Mileage Tracker")));
  form().print.maintenance.Check(false);
  EXPECT_THAT(PrintedTexts(), Not(Contains("Action Req.")));
  form().print.panel.close.Click();
  rig.ClickMenu("mOPW");
  EXPECT_EQ(form().status(), "Print Worksheet");
  EXPECT_THAT(PrintedTexts(),
              ::testing::AllOf(Contains(" Company Vehicle Maintenance Tracker Data Worksheet"),
                               Contains("Replace Engine Coolant"),
                               Contains("VIN: ___________________________")));
  EXPECT_EQ(rig.pages.printed.back().pages.size(), 1u);
}

TEST_F(AutoMaintTest, AllVehiclesWithSomethingDueArePrinted) {
  rig.ClickMenu("mVAll");
  EXPECT_FALSE(form().print.panel.is_open());
  Make("Van", "13000");
  ShowMaintenance();
  schedule().EditCell(1, MaintenancePane::kOdometer, "10000");
  form().save.Click();
  form().view_information.Click();
  field(kVin).Type("1FT");
  form().save.Click();
  Make("Truck", "13000");
  ShowMaintenance();
  schedule().EditCell(2, MaintenancePane::kOdometer, "7,400");  // 400 are left
  for (int row : {1, 3, 4, 5, 6, 7}) schedule().EditCell(row, MaintenancePane::kOdometer, "13000");
  form().save.Click();
  rig.ClickMenu("mVAll");
  EXPECT_THAT(PrintedTexts(), ::testing::AllOf(Contains(" Ford E150 Van (VIN - 1FT)"),
                                               Not(Contains(" Ford E150 Van (VIN - )"))));
  form().print.in_500.Check(true);
  form().print.update.Click();
  EXPECT_THAT(PrintedTexts(), Contains(" Ford E150 Van (VIN - )"));
}

// Each month a fill-up, each third one an oil change, of vehicles that go 1,000, 2,000 and 3,000
// miles a month.
TEST_F(AutoMaintTest, ThreeVehiclesAreKeptForAYear) {
  for (const char* name : {"Van", "Truck", "Bus"}) Make(name, "10000");
  for (int month = 1; month <= 12; ++month) {
    rig.clock.now.date = text::MakeDate(2027, static_cast<unsigned>(month), 14);
    Open();
    const std::string date = std::to_string(month) + "/13/2027";
    for (int vehicle = 0; vehicle < 3; ++vehicle) {
      form().files.Pick(vehicle);
      form().view_information.Click();
      const int before = 10'000 + (vehicle + 1) * 1000 * (month - 1);
      const std::string reading = std::to_string(before + (vehicle + 1) * 1000);
      field(kOdometer).Type(reading);
      form().save.Click();
      form().view_fuel.Click();
      fuel().EditCell(month, kFuelDate, date);
      fuel().EditCell(month, kPrevious, std::to_string(before));
      fuel().EditCell(month, kCurrent, reading);
      fuel().SelectCell(month, kDriven);
      fuel().EditCell(month, kFuel, "50");
      fuel().SelectCell(month, kRate);
      fuel().EditCell(month, kCost, "100");
      form().save.Click();
      if (month % 3 != 0) continue;
      ShowMaintenance();
      schedule().EditCell(1, MaintenancePane::kOdometer, reading);
      schedule().EditCell(1, MaintenancePane::kDate, date);
      schedule().EditCell(1, MaintenancePane::kCost, "30");
      form().save.Click();
    }
  }
  rig.clock.now.date = text::MakeDate(2028, 3, 13);
  Open();
  const char* const driven[] = {"12,000.00    ", "24,000.00    ", "36,000.00    "};
  const char* const rates[] = {"20.00        ", "40.00        ", "60.00        "};
  for (int vehicle = 0; vehicle < 3; ++vehicle) {
    form().files.Pick(vehicle);
    EXPECT_EQ(form().fuel.driven.caption(), driven[vehicle]);
    EXPECT_EQ(form().fuel.rate.caption(), rates[vehicle]);
    EXPECT_EQ(form().fuel.cost.caption(), "$1,200.00     ");
    form().view_history.Click();
    EXPECT_EQ(form().history.sum.caption(), "$120.00  ");
    EXPECT_EQ(form().history.grid.text(4, HistoryPane::kDate), "12/13/2027");
    form().view_maintenance.Click();
    EXPECT_EQ(schedule().text(1, MaintenancePane::kDistanceLeft), "3,000");
    EXPECT_EQ(schedule().text(1, MaintenancePane::kTimeLeft), "0 days");
    EXPECT_EQ(schedule().text(1, MaintenancePane::kRequired), "Action Req.");
  }
}

TEST_F(AutoMaintTest, ThePictureIsTakenFromAnywhereOnTheMachine) {
  Make("Van");
  rig.folders.readable["/home/ann/Tarnwell/"].files = {"van.jpg", "notes.txt"};
  rig.pictures.at["/home/ann/Tarnwell/van.jpg"] = {std::make_shared<const std::string>("png")};
  form().view_information.Click();
  form().information.choose_picture.Click();
  EXPECT_FALSE(form().picture_choice.enter.enabled());
  EXPECT_THAT(form().picture_choice.chooser.files.items(), ElementsAre("van.jpg"));
  form().picture_choice.chooser.files.Pick(0);
  form().picture_choice.enter.Click();
  EXPECT_TRUE(form().information.picture.content());
  form().save.Click();
  EXPECT_THAT(File("ACar1.Fil"), EndsWith("\"/home/ann/Tarnwell/van.jpg\"\r\n"));
  rig.pictures.at.clear();
  form().view.Click();
  EXPECT_THAT(form().information.picture_note.caption(),
              StartsWith("The picture /home/ann/Tarnwell/van.jpg can't be shown: "));
}

}  // namespace
}  // namespace tarnwell::vehicles
