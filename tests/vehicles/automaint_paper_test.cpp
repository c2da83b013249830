#include <gmock/gmock.h>

#include "vehicles/automaint_rig.h"

namespace tarnwell::vehicles {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::Not;

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
  EXPECT_EQ(form().information.picture_note.caption(),
            "This picture isn't there any more: /home/ann/Tarnwell/van.jpg");
}

}  // namespace
}  // namespace tarnwell::vehicles
