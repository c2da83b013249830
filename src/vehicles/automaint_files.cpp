// Opening and deleting a vehicle.

#include <algorithm>
#include <utility>

#include "forms/disk_trouble.h"
#include "text/letters.h"
#include "vehicles/automaint.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kShownOfName = 30;  // characters, in the question before a deletion
constexpr parts::SaveWords kSaveWords{
    "Company Vehicle Maintenance Tracker",
    "Save changes made to Auto Maintenance before next action or exiting?",
    forms::Buttons::kYesNoCancel};

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
