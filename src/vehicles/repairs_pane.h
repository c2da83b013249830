#pragma once

#include <vector>

#include "forms/grid.h"
#include "forms/panel.h"
#include "vehicles/entry_rules.h"
#include "vehicles/vehicle_files.h"

namespace tarnwell::vehicles {

// What was repaired or bought for a vehicle, to be written and changed.
class RepairsPane {
 public:
  enum Column : int { kNumber, kOdometer, kDate, kText, kCost };

  RepairsPane(forms::Container& parent, Tracker& tracker);

  forms::Panel panel;
  forms::Grid grid{panel, "Grid2", "Repairs and Expenditures"};

  void Show(const std::vector<HistoryEntry>& entries);
  // Without the blank rows.
  std::vector<HistoryEntry> Entries() const;
  // The row of that entry, unless it was changed since.
  void Remove(const HistoryEntry& entry);
  void ShowUnit();
  void ForgetTurns() { vehicles::ForgetTurns(grid, kDate); }

 private:
  HistoryEntry EntryAt(int row) const;
  bool TakesCell(int row, int column, std::string& text);

  Tracker& tracker_;
};

}  // namespace tarnwell::vehicles
