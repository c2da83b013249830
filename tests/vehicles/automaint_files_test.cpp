#include <gmock/gmock.h>

#include <filesystem>

#include "vehicles/automaint_rig.h"

namespace tarnwell::vehicles {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string Entries(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i)
    lines += "\"1,000\"\r\n\"3/13/2026\"\r\n\"Toll\"\r\n\"$1.00\"\r\n";
  return lines;
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

}  // namespace
}  // namespace tarnwell::vehicles
