#include "vehicles/vehicle_print.h"

#include <memory>
#include <utility>

#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {

VehiclePrint::VehiclePrint(forms::Container& parent, Tracker& tracker)
    : panel(parent, tracker.context, {.as_of_caption = {}}), tracker_(tracker) {
  for (forms::CheckBox* section : Sections()) {
    section->on_change = [this] { panel.Rebuild(); };
  }
  border.on_change = [this] { panel.Rebuild(); };
}

std::vector<forms::CheckBox*> VehiclePrint::Sections() {
  return {&information, &maintenance, &repairs, &maintenance_history,
          &all_history, &fuel,        &picture};
}

std::vector<forms::CheckBox*> VehiclePrint::Distances() {
  return {&in_15_days, &in_30_days, &in_250, &in_500};
}

void VehiclePrint::Show(Mode mode, print::PrintJob job) {
  for (forms::CheckBox* section : Sections()) section->SetVisible(mode == Mode::kVehicle);
  for (forms::CheckBox* distance : Distances()) distance->SetVisible(mode == Mode::kAll);
  update.SetVisible(mode == Mode::kAll);
  panel.options_frame.SetVisible(mode != Mode::kWorksheet);
  border.SetVisible(mode != Mode::kWorksheet);
  const std::string unit(tracker_.words().unit);
  in_250.SetCaption("Required in next 250 " + unit);
  in_500.SetCaption("Required in next 500 " + unit);
  job.printed_line = false;
  job.guide_lines = settings::GuideLines::kVehicles;
  job.font = settings::PrinterFont::kVehicles;
  panel.Open(std::move(job));
}

// A section without data can't be ticked.
void VehiclePrint::OpenVehicle(PrintedVehicle vehicle) {
  const auto offer = [](forms::CheckBox& section, bool has_data) {
    section.SetEnabled(has_data);
    section.SetChecked(has_data);
  };
  offer(information, true);
  offer(maintenance, vehicle.HasSchedule());
  offer(repairs, !vehicle.repairs.empty());
  offer(maintenance_history, !vehicle.maintenance.empty());
  offer(all_history, !vehicle.maintenance.empty() || !vehicle.repairs.empty());
  offer(fuel, !vehicle.fuel.empty());
  offer(picture, vehicle.picture != nullptr);
  const auto printed = std::make_shared<PrintedVehicle>(std::move(vehicle));
  print::PrintJob job;
  job.title = VehicleTitle(*printed);
  job.page_head = [this, printed](print::PageEngine& engine) {
    VehicleHead(engine, VehicleTitle(*printed), tracker_.today(), border.checked());
  };
  job.build = [this, printed](print::PageEngine& engine) {
    Build(engine, *printed);
    NumberPages(engine);
  };
  Show(Mode::kVehicle, std::move(job));
}

void VehiclePrint::Build(print::PageEngine& engine, const PrintedVehicle& vehicle) const {
  const UnitWords& words = tracker_.words();
  if (picture.checked()) PictureSection(engine, vehicle.picture);
  if (information.checked()) InformationSection(engine, vehicle.sheet);
  if (maintenance.checked()) MaintenanceSection(engine, vehicle.sheet, words, tracker_.today());
  if (repairs.checked()) RepairsSection(engine, vehicle.repairs, words);
  if (maintenance_history.checked()) {
    MaintenanceHistorySection(engine, vehicle.maintenance, words);
  }
  if (all_history.checked()) {
    AllHistorySection(engine, JoinedHistory(vehicle.maintenance, vehicle.repairs), words);
  }
  if (fuel.checked()) FuelSection(engine, vehicle.fuel, words);
}

void VehiclePrint::OpenWorksheet() {
  print::PrintJob job;
  job.title = "Company Vehicle Maintenance Tracker Data Worksheet";
  job.build = [this](print::PageEngine& engine) { Worksheet(engine, tracker_.words()); };
  Show(Mode::kWorksheet, std::move(job));
}

Nearness VehiclePrint::Wanted() const {
  return {in_15_days.checked(), in_30_days.checked(), in_250.checked(), in_500.checked()};
}

void VehiclePrint::OpenAll(Search search) {
  for (forms::CheckBox* distance : Distances()) distance->SetChecked(false);
  all_ = search(Wanted());
  update.on_click = [this, search] {
    all_ = search(Wanted());
    panel.Rebuild();
  };
  print::PrintJob job;
  job.title = "Action Required - All Vehicles";
  job.page_head = [this](print::PageEngine& engine) {
    if (engine.page_count() == 1) printing_ = 0;
    if (all_.empty()) return;
    VehicleHead(engine, VinTitle(all_[printing_]), tracker_.today(), border.checked());
  };
  job.build = [this](print::PageEngine& engine) { BuildAll(engine); };
  Show(Mode::kAll, std::move(job));
}

// Each vehicle on pages of its own.
void VehiclePrint::BuildAll(print::PageEngine& engine) {
  if (all_.empty()) engine.Line("No vehicle has an action that is required.");
  for (printing_ = 0; printing_ < all_.size(); ++printing_) {
    if (printing_ > 0) engine.NewPage();
    MaintenanceSection(engine, all_[printing_].sheet, tracker_.words(), tracker_.today());
    panel.ReportProgress(static_cast<int>(printing_) + 1, static_cast<int>(all_.size()));
  }
  NumberPages(engine);
}

}  // namespace tarnwell::vehicles
