#pragma once

#include <functional>

#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "vehicles/entry_rules.h"

namespace tarnwell::vehicles {

// How far a vehicle goes with a unit of fuel, reckoned once: nothing of it is kept.
class CalculatorPanel {
 public:
  CalculatorPanel(forms::Container& parent, Tracker& tracker);

  forms::Panel panel;
  forms::Label title{panel, "Label60", {}, forms::LabelRole::kTitle};
  forms::Label current_title{panel, "Label61", "Current Odometer Reading:"};
  forms::TextField current{
      panel, "Text15(0)", {.max_length = 12, .spoken_name = "Current Odometer Reading"}};
  forms::Command use_odometer{panel, "Command21", "&Use Current Odometer Reading"};
  forms::Label previous_title{panel, "Label62", "Previous Odometer Reading:"};
  forms::TextField previous{
      panel, "Text15(1)", {.max_length = 12, .spoken_name = "Previous Odometer Reading"}};
  forms::Label driven_title{panel, "Label63"};
  forms::TextField driven{panel, "Text17", {.max_length = 12, .spoken_name = "Distance Driven"}};
  forms::Label fuel_title{panel, "Label64"};
  forms::TextField fuel{panel, "Text16", {.max_length = 12, .spoken_name = "Fuel Used"}};
  forms::Label rate_title{panel, "Label65"};
  forms::Label rate{panel, "Label66", {}, forms::LabelRole::kHeading};
  forms::Command close{panel, "Command20", "Cl&ose", {.cancel = true}};

  void Open();
  void Close();
  void ShowUnit();

  // The odometer of the vehicle on show, as its field has it.
  std::function<std::string()> odometer;
  std::function<void()> on_close;

 private:
  void TypedFuel();
  bool LacksDistance();
  void ForgetDistance();

  Tracker& tracker_;
  bool is_computed_ = false;  // the distance comes from the readings
};

}  // namespace tarnwell::vehicles
