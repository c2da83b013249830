// The vehicles' screen on March 9, 2026, with two makes.

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/failing_file_system.h"
#include "support/program_rig.h"
#include "vehicles/automaint.h"

namespace tarnwell::vehicles {

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
        "New file will be saved as:\n" + std::string(name) + "\nIs that correct?",
        forms::Answer::kYes);
    form().finish.Click();
  }
  void Make(const char* name, const char* odometer = "12000") {
    Enter(name, odometer);
    Finish(name);
  }
  void ExpectSaveQuestion(forms::Answer answer) {
    rig.dialogs.ExpectYesNoCancel(
        "Company Vehicle Maintenance Tracker",
        "Save changes made to Auto Maintenance before next action or exiting?", answer);
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

}  // namespace tarnwell::vehicles
