// Saving a vehicle, and taking entries out of its files.

#include <algorithm>
#include <utility>

#include "forms/disk_trouble.h"
#include "vehicles/automaint.h"
#include "vehicles/fuel_totals.h"
#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {
namespace {

void ForgetFileDates(std::vector<HistoryEntry>& entries) {
  for (HistoryEntry& entry : entries) entry.date.in_file.clear();
}

}  // namespace

parts::SaveResult AutoMaint::Save() { return state_ == State::kCreating ? Finish() : SaveOpen(); }

parts::SaveResult AutoMaint::SaveOpen() {
  if (!EndEdit()) return parts::SaveResult::kFailed;
  std::vector<FuelEntry> rows = fuel.Entries();
  if (!SettleFuel(rows)) return parts::SaveResult::kFailed;
  const forms::Hourglass hourglass(context_.window);
  information.Store(stored_);
  stored_.rows = maintenance.Rows();
  if (const auto written = WriteFiles(rows); !written) {
    forms::TellNotSaved(context_, "The vehicle", written.fault());
    return parts::SaveResult::kFailed;
  }
  ShowSaved();
  if (colors_.changed()) colors_.Save();
  return parts::SaveResult::kSaved;
}

// What stands behind so many blank rows isn't lost unasked.
bool AutoMaint::SettleFuel(std::vector<FuelEntry>& rows) {
  if (fuel_is_cut_ || !HasLostRows(rows)) return true;
  const forms::Answer answer =
      Message({std::string(tracker_.words().fuel_title),
               "There are entries behind " + std::to_string(kBlankRowsAtEnd) +
                   " blank rows, which are not saved there.\n"
                   "Move them up, so that they are saved too?",
               forms::Icon::kQuestion, forms::Buttons::kYesNoCancel});
  if (answer == forms::Answer::kNo) rows.resize(KeptRows(rows).size());
  return answer != forms::Answer::kCancel;
}

storage::Outcome AutoMaint::WriteFiles(const std::vector<FuelEntry>& fuel_rows) {
  if (!fuel_is_cut_) {
    const auto written = WriteFuel(context_.folder, open_.slot, fuel_rows);
    if (!written) return written;
  }
  const auto written =
      WriteSheet(context_.folder, open_.slot, stored_, context_.variables.DateStyle);
  if (!written) return written;
  stored_.is_older = false;
  return WriteHistories();
}

// The lists are the ones read when the vehicle was opened: read anew, their dates would turn again
// and no entry would be found that is there.
storage::Outcome AutoMaint::WriteHistories() {
  SetStatus("The vehicle has been saved.");
  const std::vector<HistoryEntry> additions = EntriesOf({stored_.rows.begin(), stored_.rows.end()});
  std::vector<HistoryEntry> done = MergedHistory(maintenance_.entries, additions);
  if (maintenance_.is_cut || done.size() > kMostHistory) {
    SetStatus("The vehicle has been saved, but its maintenance history is full.");
  } else {
    const auto written = WriteHistory(context_.folder, HistoryKind::kMaintenance, open_.slot, done);
    if (!written) return written;
    maintenance_.entries = std::move(done);
  }
  if (repairs_.is_cut) return {};
  std::vector<HistoryEntry> paid = MergedHistory(repairs.Entries(), {});
  const auto written = WriteHistory(context_.folder, HistoryKind::kRepairs, open_.slot, paid);
  if (written) repairs_.entries = std::move(paid);
  return written;
}

// The files hold what is shown now.
void AutoMaint::ShowSaved() {
  ForgetFileDates(maintenance_.entries);
  ForgetFileDates(repairs_.entries);
  maintenance.ForgetTurns();
  fuel.ForgetTurns();
  if (!repairs_.is_cut) {
    const forms::GridPlace cursor = repairs.grid.current();
    repairs.Show(repairs_.entries);
    repairs.grid.SetCurrent(cursor);
  }
  history.SetHistories(maintenance_, repairs_);
  has_declined_ = false;
  question_.SetUnsaved(false);
}

bool AutoMaint::RemoveFuel(const std::vector<FuelEntry>& rest) {
  std::vector<FuelEntry> rows = rest;
  if (!SettleFuel(rows)) return false;
  if (const auto written = WriteFuel(context_.folder, open_.slot, rows); !written) {
    forms::TellNotSaved(context_, "The fuel tracker", written.fault());
    return false;
  }
  std::erase_if(rows, [](const FuelEntry& entry) { return entry.IsBlank(); });
  fuel.Show(rows);
  return true;
}

// What a person has changed elsewhere and not saved stays as it is.
bool AutoMaint::RemoveHistory(HistoryKind kind, const HistoryEntry& removed) {
  History& history_of = kind == HistoryKind::kMaintenance ? maintenance_ : repairs_;
  std::vector<HistoryEntry> rest = history_of.entries;
  if (const auto entry = std::ranges::find(rest, removed); entry != rest.end()) rest.erase(entry);
  if (const auto written = WriteHistory(context_.folder, kind, open_.slot, rest); !written) {
    forms::TellNotSaved(context_, "The history", written.fault());
    return false;
  }
  ForgetFileDates(rest);
  history_of.entries = std::move(rest);
  if (kind == HistoryKind::kRepairs) {
    repairs.Remove(removed);
    repairs.ForgetTurns();
  }
  history.SetHistories(maintenance_, repairs_);
  return true;
}

}  // namespace tarnwell::vehicles
