#include "vehicles/fuel_cells.h"

#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

std::string_view MaskOf(FuelColumn column) {
  switch (column) {
    case kPrevious:
      return "#,###,###         ";
    case kCurrent:
      return "#,###,##0          ";
    case kDriven:
      return "#,###,###      ";
    case kFuel:
      return "##0.00    ";
    case kRate:
      return "###,##0.00        ";
    case kFuelDate:
    case kCost:
      break;
  }
  return {};
}

}  // namespace

std::string FuelText(FuelColumn column, std::string_view cell) {
  const std::string typed = text::Trim(cell);
  if (typed.empty()) return {};
  const float number = SingleIn(typed);
  if (number == 0 && typed.find('0') == std::string::npos) return typed;
  if (column == kCost) return CostText(number) + "  ";
  return text::FormatNumber(number, MaskOf(column));
}

std::optional<std::string> DrivenText(std::string_view previous, std::string_view current) {
  const float from = SingleIn(previous);
  const float to = SingleIn(current);
  if (from <= 0 || to <= 0 || to < from) return std::nullopt;
  return text::FormatNumber(to - from, MaskOf(kDriven));
}

std::optional<std::string> RateText(std::string_view driven, std::string_view fuel) {
  const float distance = SingleIn(driven);
  const float used = SingleIn(fuel);
  if (distance <= 0 || used <= 0) return std::nullopt;
  return text::FormatNumber(distance / used, MaskOf(kRate));
}

}  // namespace tarnwell::vehicles
