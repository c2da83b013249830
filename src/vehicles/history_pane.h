#pragma once

#include <functional>
#include <vector>

#include "forms/command.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "vehicles/entry_rules.h"
#include "vehicles/vehicle_files.h"

namespace tarnwell::vehicles {

// Which history is shown, by the codes that the screen has for them.
enum class HistoryView { kNone = 0, kMaintenance = 16, kRepairs = 17, kAll = 18 };

// A vehicle's histories as they are on the disk, with what they cost.
class HistoryPane {
 public:
  enum Column : int { kOdometer, kDate, kText, kCost };

  HistoryPane(forms::Container& parent, Tracker& tracker);

  forms::Panel panel;
  forms::Label heading{panel, "Label30", {}, forms::LabelRole::kHeading};
  forms::Grid grid{panel, "Grid1", "History"};
  forms::Label sum_title{panel, "Label31"};
  forms::Label sum{panel, "Label32"};
  forms::Command maintenance{panel, "Command16", "View Maint. History"};
  forms::Command repairs{panel, "Command17", "View Rep/Exp Hist"};
  forms::Command all{panel, "Command18", "View All History"};
  forms::Command remove{panel, "Command19", "Delete Entry"};

  void SetHistories(const History& maintenance_history, const History& repair_history);
  // False where there is nothing to show, which was told.
  bool View(HistoryView view);
  void Clear();
  void ShowUnit();

  // A person wants this history to be written without an entry. False where the disk refuses.
  std::function<bool(HistoryKind kind, const HistoryEntry& removed)> on_remove;

 private:
  void ShowEntries();
  void Selected();
  void Remove();

  Tracker& tracker_;
  History maintenance_;
  History repairs_;
  HistoryView view_ = HistoryView::kNone;
  bool has_told_ = false;  // that nothing can be deleted in this view
  std::vector<HistoryEntry> shown_;
};

}  // namespace tarnwell::vehicles
