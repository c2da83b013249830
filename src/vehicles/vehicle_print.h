#pragma once

#include <functional>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "print/print_panel.h"
#include "vehicles/due.h"
#include "vehicles/entry_rules.h"
#include "vehicles/vehicle_report.h"

namespace tarnwell::vehicles {

// The tracker's Print Options: one vehicle in the sections ticked, the blank worksheet, or all
// vehicles of which something is due.
class VehiclePrint {
 public:
  // The vehicles to print for a nearness.
  using Search = std::function<std::vector<PrintedVehicle>(const Nearness& wanted)>;

  VehiclePrint(forms::Container& parent, Tracker& tracker);

  print::PrintPanel panel;
  forms::CheckBox information{panel.options_frame, "SSCheck80(0)", "Information"};
  forms::CheckBox maintenance{panel.options_frame, "SSCheck80(1)", "Maintenance"};
  forms::CheckBox repairs{panel.options_frame, "SSCheck80(2)", "Repairs && Exp."};
  forms::CheckBox maintenance_history{panel.options_frame, "SSCheck81(0)", "Maint. History"};
  forms::CheckBox all_history{panel.options_frame, "SSCheck81(1)", "All History"};
  forms::CheckBox fuel{panel.options_frame, "SSCheck1", "Fuel Tracker"};
  forms::CheckBox picture{panel.options_frame, "SSCheck2", "Picture"};
  forms::CheckBox in_15_days{panel.options_frame, "SSCheck82(0)", "Required in next 15 days"};
  forms::CheckBox in_30_days{panel.options_frame, "SSCheck82(1)", "Required in next 30 days"};
  forms::CheckBox in_250{panel.options_frame, "SSCheck82(2)", "Required in next 250 Miles"};
  forms::CheckBox in_500{panel.options_frame, "SSCheck82(3)", "Required in next 500 Miles"};
  forms::Command update{panel.options_frame, "Command24", "&Update Display"};
  forms::CheckBox border{panel.options_frame, "SSCheck3", "Print Border"};

  void OpenVehicle(PrintedVehicle vehicle);
  void OpenWorksheet();
  void OpenAll(Search search);

 private:
  enum class Mode { kVehicle, kWorksheet, kAll };

  void Show(Mode mode, print::PrintJob job);
  void Build(print::PageEngine& engine, const PrintedVehicle& vehicle) const;
  void BuildAll(print::PageEngine& engine);
  Nearness Wanted() const;
  std::vector<forms::CheckBox*> Sections();
  std::vector<forms::CheckBox*> Distances();

  Tracker& tracker_;
  std::vector<PrintedVehicle> all_;
  std::size_t printing_ = 0;  // of them, while the pages are made
};

}  // namespace tarnwell::vehicles
