// The cells of a row of the fuel tracker.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwell::vehicles {

// By their places in the grid, behind the rows' numbers.
enum FuelColumn : int { kFuelDate = 1, kPrevious, kCurrent, kDriven, kFuel, kRate, kCost };

// The text of a number as its column shows it, with the blanks behind it; empty for blanks. What
// begins with no number stays as it is.
std::string FuelText(FuelColumn column, std::string_view cell);

// Between two readings of the odometer, as the cell shows it. Empty unless both are above 0 and the
// second isn't the lower one.
std::optional<std::string> DrivenText(std::string_view previous, std::string_view current);
// The distance for a unit of fuel, likewise. Empty unless both are above 0.
std::optional<std::string> RateText(std::string_view driven, std::string_view fuel);

}  // namespace tarnwell::vehicles
