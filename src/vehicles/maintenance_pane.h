#pragma once

#include <array>

#include "forms/date_picker.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "vehicles/due.h"
#include "vehicles/entry_rules.h"
#include "vehicles/vehicle_sheet.h"

namespace tarnwell::vehicles {

// The schedule of a vehicle: its actions, when they were done last and what remains.
class MaintenancePane {
 public:
  enum Column : int {
    kNumber,
    kAction,
    kDistance,
    kMonths,
    kOdometer,
    kDate,
    kCost,
    kDistanceLeft,
    kTimeLeft,
    kRequired
  };

  MaintenancePane(forms::Container& parent, Tracker& tracker);

  forms::Panel panel;
  forms::Label intervals{panel, "Label33"};
  forms::Grid grid{panel, "Grid4", "Maintenance schedule"};
  forms::Label note{panel, "Label34", {}, forms::LabelRole::kNote};
  forms::DatePicker calendar{panel, "MonthView2", "Date of the last action"};

  void Show(const std::array<ScheduleRow, kScheduleRows>& rows);
  std::array<ScheduleRow, kScheduleRows> Rows() const;
  // The standard actions, with the intervals to begin with.
  void FillStandard();
  // The note about intervals is there while a vehicle is created.
  void SetCreating(bool creating);
  void ShowUnit();
  // Computes all rows.
  void Recompute();
  // Rows without an action behind the standard ones go.
  void RemoveBlankRows();
  void ForgetTurns() { vehicles::ForgetTurns(grid, kDate); }

 private:
  void BuildGrid();
  ScheduleRow RowAt(int row) const;
  bool TakesCell(int row, int column, std::string& text);
  void Edited(int row, int column);
  void RecomputeRow(int row);
  void ShowDue(int row, bool is_named, const Due& due);
  bool GoesWithBlankRows(bool with_entries, int row) const;

  Tracker& tracker_;
};

}  // namespace tarnwell::vehicles
