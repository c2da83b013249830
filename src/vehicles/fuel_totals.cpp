#include "vehicles/fuel_totals.h"

#include <algorithm>
#include <cmath>

#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

// How many rows stand before a run of blank ones that ends the tracker.
template <typename IsBlank>
std::size_t RowsBeforeEnd(std::span<const FuelEntry> entries, IsBlank is_blank) {
  std::size_t blank = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    blank = is_blank(entries[i]) ? blank + 1 : 0;
    if (blank == kBlankRowsAtEnd) return i + 1 - blank;
  }
  return entries.size();
}

bool HasNoFigures(const FuelEntry& entry) {
  return SingleIn(entry.driven) <= 0 && SingleIn(entry.rate) <= 0 && SingleIn(entry.cost) <= 0;
}

}  // namespace

std::string FuelTotals::DrivenText() const { return text::FormatNumber(driven, "###,###0.00    "); }
std::string FuelTotals::FuelText() const { return text::FormatNumber(fuel, "###,###0.00    "); }
std::string FuelTotals::RateText() const { return text::FormatNumber(rate, "###0.00        "); }
std::string FuelTotals::CostText() const { return text::FormatNumber(cost, "Currency") + "     "; }

FuelTotals TotalFuel(std::span<const FuelEntry> entries) {
  FuelTotals totals;
  for (const FuelEntry& entry : entries.first(RowsBeforeEnd(entries, HasNoFigures))) {
    if (HasNoFigures(entry)) continue;
    totals.driven += SingleIn(entry.driven);
    totals.fuel += SingleIn(entry.fuel);
    totals.cost += SingleIn(entry.cost);
  }
  if (totals.fuel > 0) totals.rate = totals.driven / totals.fuel;
  return totals;
}

std::span<const FuelEntry> KeptRows(std::span<const FuelEntry> entries) {
  return entries.first(RowsBeforeEnd(entries, [](const FuelEntry& e) { return e.IsBlank(); }));
}

bool HasLostRows(std::span<const FuelEntry> entries) {
  return !std::ranges::all_of(entries.subspan(KeptRows(entries).size()),
                              [](const FuelEntry& entry) { return entry.IsBlank(); });
}

TripResult ComputeTrip(const Trip& trip) {
  const float driven = text::Trim(trip.driven).empty()
                           ? std::abs(WholeNumber(trip.current) - WholeNumber(trip.previous))
                           : WholeNumber(trip.driven);
  TripResult result{text::FormatNumber(driven, "#,###,###"), {}};
  const float fuel = SingleIn(trip.fuel);
  if (fuel > 0) result.rate = text::FormatNumber(driven / fuel, "####.##");
  return result;
}

std::string AmountTyped(std::string_view typed) {
  std::string kept(typed);
  constexpr std::string_view kAmountCharacters = "+,.0123456789";
  if (!kept.empty() && kAmountCharacters.find(kept.back()) == std::string_view::npos) {
    kept.pop_back();
  }
  return kept;
}

}  // namespace tarnwell::vehicles
