// The steps by which a vehicle is created.

#include <utility>

#include "forms/disk_trouble.h"
#include "text/letters.h"
#include "vehicles/automaint.h"

namespace tarnwell::vehicles {

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

}  // namespace tarnwell::vehicles
