#include "vehicles/automaint.h"

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

constexpr const char* kCaption = "Company Data - Company Vehicle Maintenance Tracker";

std::string CaptionOf(const forms::ProgramVariables& variables) {
  return variables.CompanyLine.empty() ? kCaption
                                       : " " + std::string(kCaption) + variables.CompanyLine;
}

}  // namespace

AutoMaint::AutoMaint(forms::Context& context)
    : Form(context, forms::form_names::kAutoMaint, CaptionOf(context.variables)),
      tracker_{*this, context, [this] { Changed(); }} {
  Connect();
  ConnectPanes();
  BuildMenus();
  SetHelpContext(kHelpPage);
  searching.SetVisible(false);
  searching.Cover({&sheet, &print.panel.panel});
  for (forms::Panel* panel : {&calculator.panel, &picture_choice.panel, &print.panel.panel}) {
    panel->Cover({&sheet});
  }
  for (forms::Panel* pane : {&maintenance.panel, &repairs.panel, &history.panel, &fuel.panel}) {
    pane->SetVisible(false);
    pane->Cover({&information.panel});
  }
  colors_.on_change = [this] {
    for (forms::Panel* panel :
         {&sheet, &calculator.panel, &picture_choice.panel, &searching, &print.panel.panel}) {
      panel->SetBackground(colors_.panel());
    }
  };
}

void AutoMaint::Connect() {
  question_.on_change = [this] { SetUnsaved(question_.unsaved()); };
  files.on_pick = [this] { PickFile(); };
  create.on_click = [this] { Create(); };
  view.on_click = [this] { ViewExisting(); };
  remove.on_click = [this] { DeleteFile(); };
  save.on_click = [this] {
    if (HasVehicle()) Save();
  };
  print_options.on_click = [this] { OpenPrint(); };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  next_to_schedule.on_click = [this] { NextToSchedule(); };
  next_to_repairs.on_click = [this] {
    if (!EndEdit()) return;
    ShowPane(Pane::kRepairs);
    repairs.grid.Focus();
  };
  finish.on_click = [this] { Finish(); };
  view_information.on_click = [this] { GoToPane(Pane::kInformation); };
  view_maintenance.on_click = [this] { GoToPane(Pane::kMaintenance); };
  view_repairs.on_click = [this] { GoToPane(Pane::kRepairs); };
  view_history.on_click = [this] { GoToPane(Pane::kHistory); };
  view_fuel.on_click = [this] { GoToPane(Pane::kFuel); };
}

void AutoMaint::ConnectPanes() {
  information.on_leave = [this] { Recompute(); };
  information.choose_picture.on_click = [this] { picture_choice.Open(information.picture_path()); };
  const auto take = [this](const std::string& path) {
    information.ShowPicture(path);
    Changed();
  };
  picture_choice.on_take = take;
  picture_choice.on_remove = [take] { take({}); };
  history.on_remove = [this](HistoryKind kind, const HistoryEntry& removed) {
    return RemoveHistory(kind, removed);
  };
  fuel.on_remove = [this](const std::vector<FuelEntry>& rest) { return RemoveFuel(rest); };
  calculator.odometer = [this] { return information.field(kOdometer).text(); };
  calculator.on_close = picture_choice.on_close = [this] { exit.Focus(); };
  print.panel.on_close = [this] {
    SetStatus({});
    exit.Focus();
  };
  editors_ = {&information.years,
              &information.makes,
              &information.models,
              &information.choose_picture,
              &information.remove_picture,
              &maintenance.grid,
              &maintenance.calendar,
              &repairs.grid,
              &fuel.grid,
              &fuel.calendar,
              &fuel.remove,
              &history.grid};
  for (const auto& field : information.fields) editors_.push_back(field.get());
}

void AutoMaint::Load() {
  colors_.Load();
  tracker_.unit = settings::ReadDistanceUnit(context_.folder);
  tracker_.checks_dates = settings::ReadDateCheckerOn(context_.folder);
  today.SetCaption("Today's Date: " + ShortDate(tracker_.today()));
  ShowUnit();
  ShowDateChecker();
  CloseVehicle();
  ShowPane(Pane::kInformation);
  FillList(0);
  if (vehicles_.empty()) return;
  files.Select(0);
  OpenVehicle(vehicles_.front());
}

bool AutoMaint::QueryUnload(forms::UnloadCause) {
  return EndEdit() &&
         question_.Settle({"Company Vehicle Maintenance Tracker Information",
                           "Save changes made to Auto Maintenance before exiting?",
                           forms::Buttons::kYesNoCancel}) &&
         colors_.Leave(forms::Buttons::kYesNoCancel);
}

void AutoMaint::ShowState(State state) {
  state_ = state;
  const bool is_creating = state == State::kCreating;
  information.captions[0]->SetCaption(is_creating ? "Enter File Name:" : kFieldCaptions[0]);
  information.fields[0]->SetVisible(is_creating);
  files.SetVisible(!is_creating);
  next_to_schedule.SetVisible(is_creating);
  next_to_repairs.SetVisible(false);
  finish.SetVisible(false);
  save.SetVisible(!is_creating);
  for (forms::Control* control :
       {&view_maintenance, &view_repairs, &view_history, &view_fuel, &remove, &print_options}) {
    control->SetEnabled(!is_creating);
  }
  maintenance.SetCreating(is_creating);
  for (forms::Control* editor : editors_) editor->SetEnabled(state != State::kNone);
  information.remove_picture.SetEnabled(state != State::kNone &&
                                        !information.picture_path().empty());
  repairs.grid.SetEnabled(state != State::kNone && !repairs_.is_cut);
  fuel.grid.SetEnabled(state != State::kNone && !fuel_is_cut_);
  fuel.remove.SetEnabled(fuel.grid.enabled());
}

void AutoMaint::ShowPane(Pane pane) {
  pane_ = pane;
  const struct {
    Pane pane;
    forms::Panel& panel;
    forms::Command& command;
  } panes[] = {{Pane::kInformation, information.panel, view_information},
               {Pane::kMaintenance, maintenance.panel, view_maintenance},
               {Pane::kRepairs, repairs.panel, view_repairs},
               {Pane::kHistory, history.panel, view_history},
               {Pane::kFuel, fuel.panel, view_fuel}};
  for (const auto& each : panes) {
    each.panel.SetVisible(each.pane == pane);
    each.command.SetSelected(each.pane == pane);
  }
  if (state_ != State::kCreating) return;
  next_to_schedule.SetVisible(pane == Pane::kInformation);
  next_to_repairs.SetVisible(pane == Pane::kMaintenance);
  finish.SetVisible(pane != Pane::kInformation);
}

void AutoMaint::GoToPane(Pane pane) {
  if (!EndEdit()) return;
  if (state_ == State::kCreating) return ShowPane(pane);
  if (!HasVehicle() || !OfferToSave()) return;
  if (pane == Pane::kHistory && !history.View(HistoryView::kAll)) return;
  ShowPane(pane);
}

bool AutoMaint::OfferToSave() {
  if (!EndEdit()) return false;
  if (!question_.unsaved() || has_declined_) return true;
  switch (Message({"Company Vehicle Maintenance Tracker",
                   "Save changes made to Auto Maintenance before next action or exiting?",
                   forms::Icon::kQuestion, forms::Buttons::kYesNoCancel})) {
    case forms::Answer::kYes:
      return Save() == parts::SaveResult::kSaved;
    case forms::Answer::kNo:
      // They stay on show, unsaved, and are asked about again when they would be lost.
      has_declined_ = true;
      return true;
    default:
      return false;
  }
}

void AutoMaint::ShowUnit() {
  const bool miles = tracker_.unit == settings::DistanceUnit::kMiles;
  forms::MenuItem& options = *menus().Find("mO");
  options.Find("mOProgMiles")->SetChecked(miles);
  options.Find("mOProgKilo")->SetChecked(!miles);
  options.Find("mOGas")->SetVisible(miles);
  options.Find("mOKm")->SetVisible(!miles);
  maintenance.ShowUnit();
  repairs.ShowUnit();
  history.ShowUnit();
  fuel.ShowUnit();
  calculator.ShowUnit();
}

void AutoMaint::SetUnit(settings::DistanceUnit unit) {
  tracker_.unit = unit;
  ShowUnit();
  const auto stored = settings::WriteDistanceUnit(context_.folder, unit);
  if (!stored) forms::TellHoldsForNow(context_, "The unit of distances", stored.fault());
}

void AutoMaint::ShowDateChecker() {
  menus().Find("DisableDateChecker(0)")->SetVisible(tracker_.checks_dates);
  menus().Find("DisableDateChecker(1)")->SetVisible(!tracker_.checks_dates);
}

void AutoMaint::SetDateChecker(bool on) {
  tracker_.checks_dates = on;
  ShowDateChecker();
  const auto stored = settings::WriteDateCheckerOn(context_.folder, on);
  if (!stored) forms::TellHoldsForNow(context_, "The date checker", stored.fault());
}

bool AutoMaint::EndEdit() {
  if (!maintenance.grid.EndEdit() || !repairs.grid.EndEdit() || !fuel.grid.EndEdit()) return false;
  if (state_ != State::kNone) Recompute();
  return true;
}

void AutoMaint::Changed() {
  has_declined_ = false;
  question_.SetUnsaved(true);
}

void AutoMaint::Recompute() {
  information.FormatOdometer();
  tracker_.odometer = WholeNumber(information.field(kOdometer).text());
  maintenance.Recompute();
  registration.SetVisible(
      RegistrationIsDue(information.field(kRegistrationMonth).text(), tracker_.today()));
}

bool AutoMaint::HasVehicle() {
  if (state_ != State::kNone) return true;
  Message({"Select Auto File Name", "Please Select an Auto File Name First!",
           forms::Icon::kExclamation});
  return false;
}

}  // namespace tarnwell::vehicles
