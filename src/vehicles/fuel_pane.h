#pragma once

#include <functional>
#include <vector>

#include "forms/command.h"
#include "forms/date_picker.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "vehicles/entry_rules.h"
#include "vehicles/fuel_cells.h"
#include "vehicles/vehicle_files.h"

namespace tarnwell::vehicles {

// A vehicle's fill-ups and their totals.
class FuelPane {
 public:
  FuelPane(forms::Container& parent, Tracker& tracker);

  forms::Panel panel;
  forms::Label title{panel, "Label47", {}, forms::LabelRole::kHeading};
  forms::Grid grid{panel, "Grid3", "Fill-ups"};
  forms::Label totals_title{panel, "Label48", "Total/Total /Average/Total Information: "};
  forms::Label driven{panel, "Label15"};
  forms::Label fuel{panel, "Label49"};
  forms::Label rate{panel, "Label50"};
  forms::Label cost{panel, "Label51"};
  forms::Command remove{panel, "Command23", "Delete &Entry"};
  forms::DatePicker calendar{panel, "MonthView1", "Date of the fill-up"};

  void Show(const std::vector<FuelEntry>& entries);
  // All rows, blank ones too.
  std::vector<FuelEntry> Entries() const;
  void ShowUnit();
  void ForgetTurns() { vehicles::ForgetTurns(grid, kFuelDate); }

  // A person wants the tracker to be written without a row. False where it can't be.
  std::function<bool(const std::vector<FuelEntry>& rest)> on_remove;

 private:
  void BuildGrid();
  FuelEntry RowAt(int row) const;
  bool TakesCell(int row, int column, std::string& text);
  void Edited(int row, int column);
  void Moved();
  void Compute(int row, FuelColumn column, const std::optional<std::string>& text);
  void ShowTotals();
  void Remove();

  Tracker& tracker_;
};

}  // namespace tarnwell::vehicles
