// Opening, creating, saving and deleting a vehicle.

#include <algorithm>
#include <utility>

#include "forms/disk_trouble.h"
#include "text/letters.h"
#include "vehicles/automaint.h"
#include "vehicles/cell_values.h"
#include "vehicles/fuel_totals.h"
#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kShownOfName = 30;  // characters, in the question before a deletion
constexpr parts::SaveWords kSaveWords{
    "Company Vehicle Maintenance Tracker",
    "Save changes made to Auto Maintenance before next action or exiting?",
    forms::Buttons::kYesNoCancel};

void ForgetFileDates(std::vector<HistoryEntry>& entries) {
  for (HistoryEntry& entry : entries) entry.date.in_file.clear();
}

}  // namespace

void AutoMaint::FillList(int slot) {
  VehicleTable table = ReadVehicles(context_.folder);
  if (table.fault != storage::Fault::kNone) {
    forms::TellUnreadable(context_, "The list of vehicles", table.fault);
  }
  vehicles_ = std::move(table.vehicles);
  std::vector<std::string> names;
  for (const Vehicle& vehicle : vehicles_) {
    const bool is_alone = std::ranges::count(vehicles_, vehicle.name, &Vehicle::name) == 1;
    names.push_back(is_alone ? vehicle.name
                             : vehicle.name + " (" + std::to_string(vehicle.slot) + ")");
  }
  files.SetItems(std::move(names));
  const auto selected = std::ranges::find(vehicles_, slot, &Vehicle::slot);
  if (slot > 0 && selected != vehicles_.end()) {
    files.Select(static_cast<int>(selected - vehicles_.begin()));
  }
}

void AutoMaint::CloseVehicle() {
  open_ = {};
  stored_ = {};
  maintenance_ = {};
  repairs_ = {};
  fuel_is_cut_ = has_declined_ = has_schedule_ = false;
  tracker_.odometer = 0;
  information.fields[0]->SetText({});
  information.Show(stored_);
  maintenance.Show(stored_.rows);
  repairs.Show({});
  history.SetHistories({}, {});
  history.Clear();
  fuel.Show({});
  registration.SetVisible(false);
  SetStatus({});
  ShowState(State::kNone);
  question_.SetUnsaved(false);
}

void AutoMaint::PickFile() {
  const int picked = files.selected();
  if (picked == forms::ComboBox::kNone) return;
  if (Settle()) return OpenVehicle(vehicles_[static_cast<std::size_t>(picked)]);
  FillList(open_.slot);
}

void AutoMaint::OpenVehicle(const Vehicle& chosen) {
  const Vehicle vehicle = chosen;  // the list may be filled anew
  const forms::Hourglass hourglass(context_.window);
  CloseVehicle();
  if (vehicle.slot < 1) {
    return SetStatus("The list names no file for \"" + vehicle.name + "\".");
  }
  const std::string& style = context_.variables.DateStyle;
  VehicleSheet read = ReadSheet(context_.folder, vehicle.slot, style);
  const bool turn = read.dates_turn;
  History done = ReadHistory(context_.folder, HistoryKind::kMaintenance, vehicle.slot, turn);
  History paid = ReadHistory(context_.folder, HistoryKind::kRepairs, vehicle.slot, turn);
  const FuelLog filled = ReadFuel(context_.folder, vehicle.slot, turn);
  for (const storage::Fault fault : {read.fault, done.fault, paid.fault, filled.fault}) {
    if (fault == storage::Fault::kNone) continue;
    return forms::TellUnreadable(context_, "The vehicle", fault);
  }
  open_ = vehicle;
  stored_ = std::move(read);
  maintenance_ = std::move(done);
  repairs_ = std::move(paid);
  fuel_is_cut_ = filled.is_cut;
  information.Show(stored_);
  information.OfferMakesBeside(tracker_.today());
  maintenance.Show(stored_.rows);
  repairs.Show(repairs_.entries);
  history.SetHistories(maintenance_, repairs_);
  fuel.Show(filled.entries);
  ShowState(State::kOpen);
  Recompute();
  ShowPane(pane_ == Pane::kHistory ? Pane::kInformation : pane_);
  question_.SetUnsaved(false);
  ReportCutFiles();
  if (!stored_.is_older) return;
  const auto written = WriteSheet(context_.folder, open_.slot, stored_, style);
  if (!written) return forms::TellNotSaved(context_, "The vehicle", written.fault());
  stored_.is_older = false;
}

void AutoMaint::ReportCutFiles() {
  std::string cut;
  const auto add = [&](bool is_cut, const char* what) {
    if (is_cut) cut += std::string(cut.empty() ? "" : " and ") + what;
  };
  add(maintenance_.is_cut, "maintenance history");
  add(repairs_.is_cut, "repairs");
  add(fuel_is_cut_, "fuel");
  if (cut.empty()) return;
  SetStatus("More entries than can be shown: " + cut + ". What is shown can't be changed.");
}

bool AutoMaint::Settle() { return EndEdit() && question_.Settle(kSaveWords); }

void AutoMaint::ViewExisting() {
  if (vehicles_.empty()) {
    Message({"No Files Found",
             "Currently there are no Auto Files to view,\nplease use the Create New File Button\n"
             "to enter new auto information!",
             forms::Icon::kInformation});
    return;
  }
  if (!Settle()) return;
  if (files.selected() == forms::ComboBox::kNone) files.Select(0);
  OpenVehicle(vehicles_[static_cast<std::size_t>(files.selected())]);
}

void AutoMaint::Create() {
  if (!Settle()) return;
  CloseVehicle();
  files.Select(forms::ComboBox::kNone);
  ShowState(State::kCreating);
  ShowPane(Pane::kInformation);
  information.OfferMakes(tracker_.today());
  information.fields[0]->Focus();
}

bool AutoMaint::IsComplete() {
  const auto is_empty = [&](std::size_t field) {
    return text::Trim(information.fields[field]->text()).empty();
  };
  const auto miss = [&](std::size_t field, const char* title, const std::string& what) {
    ShowPane(Pane::kInformation);
    Message({title, what, forms::Icon::kExclamation});
    information.fields[field]->Focus();
    return false;
  };
  if (is_empty(0)) {
    return miss(0, "Missing Auto File Name", "Please Enter File Name before proceeding further!");
  }
  if (!CanBeVehicleName(information.fields[0]->text())) {
    return miss(0, "Auto File Name",
                "A File Name can't begin with \"EMPTY\", which marks a free place in the list!");
  }
  if (is_empty(kMake) && is_empty(kModel)) {
    return miss(kMake, "Missing Make or Model Name",
                "Please Enter Make or Model Name before proceeding further!");
  }
  if (is_empty(kOdometer)) {
    return miss(kOdometer, "Missing Odometer Reading",
                "Please Enter Current Odometer Reading before proceeding further!");
  }
  return true;
}

void AutoMaint::NextToSchedule() {
  if (!EndEdit() || !IsComplete()) return;
  if (!std::exchange(has_schedule_, true)) maintenance.FillStandard();
  Recompute();
  ShowPane(Pane::kMaintenance);
  maintenance.grid.Focus();
}

parts::SaveResult AutoMaint::Finish() {
  if (!EndEdit() || !IsComplete()) return parts::SaveResult::kFailed;
  if (!std::exchange(has_schedule_, true)) maintenance.FillStandard();
  const std::string name = text::Trim(information.fields[0]->text());
  if (!Confirmed({"Create New File", "New file will be saved as:\n" + name + "\nIs that correct?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNoCancel})) {
    ShowPane(Pane::kInformation);
    information.fields[0]->Focus();
    return parts::SaveResult::kFailed;
  }
  const TakenSlot taken = TakeSlot(context_.folder, name);
  if (taken.slot == 0) {
    forms::TellNotSaved(context_, "The vehicle", taken.outcome.fault());
    return parts::SaveResult::kFailed;
  }
  open_ = {taken.slot, taken.slot, name};
  ShowState(State::kOpen);
  ShowPane(pane_);
  FillList(taken.slot);
  return SaveOpen();
}

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
  history_of.entries = std::move(rest);
  if (kind == HistoryKind::kRepairs) repairs.Remove(removed);
  history.SetHistories(maintenance_, repairs_);
  return true;
}

void AutoMaint::DeleteFile() {
  if (files.selected() == forms::ComboBox::kNone) {
    HasVehicle();
    return;
  }
  const Vehicle vehicle = vehicles_[static_cast<std::size_t>(files.selected())];
  const std::string name = text::TrimRight(text::Left(vehicle.name, kShownOfName));
  if (!Confirmed({"Delete Current File",
                  "Do You really want to delete\n" + name + "\n file and all its contents?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  if (const auto deleted = DeleteVehicle(context_.folder, vehicle); !deleted) {
    forms::TellRefused(context_, "The deletion", deleted.fault(),
                       "The vehicle's files may still hold it.");
    return FillList(open_.slot);
  }
  CloseVehicle();
  ShowPane(Pane::kInformation);
  FillList(0);
}

}  // namespace tarnwell::vehicles
