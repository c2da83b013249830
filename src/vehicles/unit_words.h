// The words that follow the unit of distance.

#pragma once

#include <string_view>

#include "settings/vehicle_settings.h"

namespace tarnwell::vehicles {

struct UnitWords {
  std::string_view unit;          // "Miles"
  std::string_view short_unit;    // in headings
  std::string_view reading;       // of the odometer
  std::string_view fuel_unit;     // "Gallons"
  std::string_view fuel_title;    // of the pane
  std::string_view driven;        // headings of the pane
  std::string_view fuel;          // likewise
  std::string_view rate;          // likewise
  std::string_view printed_rate;  // on paper
  std::string_view calculator_title;
  std::string_view calculator_driven;
  std::string_view calculator_fuel;
  std::string_view calculator_rate;
};

inline constexpr UnitWords kMileWords{.unit = "Miles",
                                      .short_unit = "Miles",
                                      .reading = "Mileage",
                                      .fuel_unit = "Gallons",
                                      .fuel_title = "Fuel Mileage Tracker",
                                      .driven = "Miles Driven",
                                      .fuel = "Gallons Used",
                                      .rate = "Miles Per Gallon",
                                      .printed_rate = "  M.P.G.  ",
                                      .calculator_title = "Fuel Mileage Calculator",
                                      .calculator_driven = "Miles Driven since last fill up:",
                                      .calculator_fuel = "Gallons of Gas used:",
                                      .calculator_rate = "Miles Per Gallon of Gas:"};
inline constexpr UnitWords kKilometerWords{
    .unit = "Kilometers",
    .short_unit = "Kms.",
    .reading = "Kilometers",
    .fuel_unit = "Liters",
    .fuel_title = "Fuel Kilometer Tracker",
    .driven = "Kms. Driven",
    .fuel = "Liters Used",
    .rate = "Kms. Per Liter",
    .printed_rate = "  K.P.L.  ",
    .calculator_title = "Fuel Kilometer Calculator",
    .calculator_driven = "Kilometers Driven since last fill up:",
    .calculator_fuel = "Liters of Gas used:",
    .calculator_rate = "Kilometers Per Liter of Gas:"};

constexpr const UnitWords& WordsOf(settings::DistanceUnit unit) {
  return unit == settings::DistanceUnit::kMiles ? kMileWords : kKilometerWords;
}

}  // namespace tarnwell::vehicles
