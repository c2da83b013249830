#include "vehicles/calculator_panel.h"

#include <utility>

#include "text/letters.h"
#include "vehicles/fuel_totals.h"

namespace tarnwell::vehicles {
namespace {

bool IsEmpty(const forms::TextField& field) { return text::Trim(field.text()).empty(); }

}  // namespace

CalculatorPanel::CalculatorPanel(forms::Container& parent, Tracker& tracker)
    : panel(parent, "SSPanel7"), tracker_(tracker) {
  panel.SetVisible(false);
  use_odometer.on_click = [this] {
    current.SetText(odometer());
    ForgetDistance();
  };
  fuel.on_change = [this] { TypedFuel(); };
  driven.on_change = [this] { is_computed_ = false; };
  current.on_change = previous.on_change = [this] { ForgetDistance(); };
  close.on_click = [this] { Close(); };
  ShowUnit();
}

void CalculatorPanel::ShowUnit() {
  const UnitWords& words = tracker_.words();
  title.SetCaption(words.calculator_title);
  driven_title.SetCaption(words.calculator_driven);
  fuel_title.SetCaption(words.calculator_fuel);
  rate_title.SetCaption(words.calculator_rate);
}

void CalculatorPanel::Open() {
  panel.SetVisible(true);
  current.Focus();
}

void CalculatorPanel::Close() {
  for (forms::TextField* field : {&current, &previous, &driven, &fuel}) field->SetText({});
  rate.SetCaption({});
  panel.SetVisible(false);
  if (on_close) on_close();
}

bool CalculatorPanel::LacksDistance() {
  if (!IsEmpty(driven) || (!IsEmpty(current) && !IsEmpty(previous))) return false;
  fuel.SetText({});
  tracker_.form.Message({"Entry Error",
                         "Both Current and Previous Odometer Readings must\nbe entered or " +
                             std::string(tracker_.words().unit) + " Driven enter before entering " +
                             std::string(tracker_.words().fuel_unit) + " of Gas!",
                         forms::Icon::kExclamation});
  (IsEmpty(current) ? current : previous).Focus();
  return true;
}

// Of readings that have changed since.
void CalculatorPanel::ForgetDistance() {
  if (!std::exchange(is_computed_, false)) return;
  driven.SetText({});
  rate.SetCaption({});
}

void CalculatorPanel::TypedFuel() {
  rate.SetCaption({});
  if (IsEmpty(fuel) || LacksDistance()) return;
  if (const std::string kept = AmountTyped(fuel.text()); kept != fuel.text()) {
    fuel.SetText(kept);
    fuel.PlaceCaret(kept.size());
  }
  const TripResult result =
      ComputeTrip({current.text(), previous.text(), driven.text(), fuel.text()});
  is_computed_ |= IsEmpty(driven);
  driven.SetText(result.driven);
  rate.SetCaption(result.rate);
}

}  // namespace tarnwell::vehicles
