// What the vehicles print.

#include <utility>

#include "vehicles/automaint.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {

PrintedVehicle AutoMaint::Printed() const {
  PrintedVehicle printed{.name = open_.name, .sheet = stored_, .maintenance = maintenance_.entries};
  information.Store(printed.sheet);
  printed.sheet.rows = maintenance.Rows();
  printed.repairs = repairs.Entries();
  for (FuelEntry& entry : fuel.Entries()) {
    if (!entry.IsBlank()) printed.fuel.push_back(std::move(entry));
  }
  printed.picture = information.picture.content();
  return printed;
}

void AutoMaint::OpenPrint() {
  if (HasVehicle() && OfferToSave()) print.OpenVehicle(Printed());
}

void AutoMaint::OpenWorksheet() {
  if (!EndEdit()) return;
  print.OpenWorksheet();
  SetStatus("Print Worksheet");
}

void AutoMaint::OpenAllDue() {
  if (!OfferToSave() || vehicles_.empty()) return;
  print.OpenAll([this](const Nearness& wanted) { return Search(wanted); });
}

std::vector<PrintedVehicle> AutoMaint::Search(const Nearness& wanted) {
  constexpr std::size_t kBetweenYields = 25;  // vehicles
  std::vector<PrintedVehicle> found;
  searching.SetVisible(true);
  {
    const BusyScope busy(*this);
    progress.Start(static_cast<int>(vehicles_.size()));
    for (std::size_t i = 0; i < vehicles_.size(); ++i) {
      if (i % kBetweenYields == 0) {
        progress.SetValue(static_cast<int>(i));
        context_.loop.Yield();
      }
      VehicleSheet read =
          ReadSheet(context_.folder, vehicles_[i].slot, context_.variables.DateStyle);
      if (read.fault == storage::Fault::kNone &&
          AnyIsNear(read.rows, WholeNumber(read.fields[kOdometer]), tracker_.today(), wanted)) {
        found.push_back({.name = vehicles_[i].name, .sheet = std::move(read)});
      }
    }
  }
  searching.SetVisible(false);
  return found;
}

}  // namespace tarnwell::vehicles
