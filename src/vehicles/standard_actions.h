// The actions that every vehicle's schedule begins with.

#pragma once

#include <array>
#include <string>
#include <string_view>

#include "settings/vehicle_settings.h"

namespace tarnwell::vehicles {

struct StandardAction {
  std::string_view name;
  std::string_view in_past;  // as a history has it
  int miles = 0;             // between two actions, for a start
  int kilometers = 0;        // likewise
  int months = 0;            // likewise

  int Distance(settings::DistanceUnit unit) const {
    return unit == settings::DistanceUnit::kMiles ? miles : kilometers;
  }
};

inline constexpr std::array<StandardAction, 7> kStandardActions = {
    {{"Change Oil and Filter", "Changed Oil and Filter", 3000, 5000, 3},
     {"Rotate Tires", "Rotated Tires", 6000, 10000, 6},
     {"Inspect Brake Linings", "Inspected or Replaced Brake Linings", 6000, 10000, 6},
     {"Replace Air Filter", "Replaced Air Filter", 30000, 48000, 24},
     {"Replace Coolant", "Replaced Engine Coolant", 60000, 96000, 48},
     {"Replace Spark Plugs", "Replaced Spark Plugs", 60000, 96000, 48},
     {"Replace Timing Belt", "Replaced Timing Belt", 60000, 96000, 48}}};

// The action in the past; any other than those above as it is.
std::string PastAction(std::string_view action);

}  // namespace tarnwell::vehicles
