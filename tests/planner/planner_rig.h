// The program with the Daily Planner on the screen, on Monday, March 9, 2026.

#pragma once

#include <gtest/gtest.h>

#include "forms/form_names.h"
#include "planner/zcalandar1.h"
#include "support/program_rig.h"

namespace tarnwell::testing {

class PlannerTest : public ::testing::Test {
 protected:
  void SetUp() override { Open(); }
  void Open() {
    rig.Start();
    rig.navigator().Show(forms::form_names::kZcalandar1);
  }
  planner::Zcalandar1& form() { return rig.Get<planner::Zcalandar1>("Zcalandar1"); }
  bool Enabled(std::string_view entry) { return form().menus().Find(entry)->enabled(); }

  ProgramRig rig;
};

}  // namespace tarnwell::testing
