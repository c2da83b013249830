// The sums of the fuel tracker, and its calculator.

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "vehicles/vehicle_files.h"

namespace tarnwell::vehicles {

// So many blank rows behind each other end the tracker: what stands behind them isn't counted.
inline constexpr std::size_t kBlankRowsAtEnd = 100;

// In single precision. The rate is that of the sums, not the mean of the rows.
struct FuelTotals {
  float driven = 0;
  float fuel = 0;
  float rate = 0;
  float cost = 0;

  // With the blanks behind them that the totals' line has.
  std::string DrivenText() const;
  std::string FuelText() const;
  std::string RateText() const;
  std::string CostText() const;
};
// Of the rows that have a distance, a rate or a cost.
FuelTotals TotalFuel(std::span<const FuelEntry> entries);

// A row that holds something stands behind so many blank ones that it would be lost.
bool HasLostRows(std::span<const FuelEntry> entries);
// The rows before those.
std::span<const FuelEntry> KeptRows(std::span<const FuelEntry> entries);

// The calculator's fields.
struct Trip {
  std::string_view current;   // odometer
  std::string_view previous;  // likewise
  std::string_view driven;    // takes the place of both, where it isn't empty
  std::string_view fuel;
};
struct TripResult {
  std::string driven;  // "12,300"
  std::string rate;    // "20.5"; empty without fuel
};
TripResult ComputeTrip(const Trip& trip);

// What was typed without a last character that no amount has.
std::string AmountTyped(std::string_view typed);

}  // namespace tarnwell::vehicles
