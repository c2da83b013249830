#pragma once

#include <string>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "parts/color_choice.h"
#include "parts/picture_panel.h"
#include "parts/save_question.h"
#include "vehicles/calculator_panel.h"
#include "vehicles/fuel_pane.h"
#include "vehicles/history_pane.h"
#include "vehicles/information_pane.h"
#include "vehicles/maintenance_pane.h"
#include "vehicles/repairs_pane.h"
#include "vehicles/vehicle_print.h"
#include "vehicles/vehicle_slots.h"

namespace tarnwell::vehicles {

// The company's vehicles: what they are, what is due, what was done and paid, how far they go.
class AutoMaint : public forms::Form {
 public:
  explicit AutoMaint(forms::Context& context);

 private:
  Tracker tracker_;

 public:
  forms::Panel sheet{*this, "SSPanel1"};
  forms::Panel head{sheet, "SSPanel20"};
  forms::ComboBox files{head, "Combo1", "Auto File Name"};
  forms::Label today{head, "Label2"};
  forms::Label registration{head, "Label3", "Registration Is Due", forms::LabelRole::kHeading};
  InformationPane information{sheet, head, tracker_};
  MaintenancePane maintenance{sheet, tracker_};
  RepairsPane repairs{sheet, tracker_};
  HistoryPane history{sheet, tracker_};
  FuelPane fuel{sheet, tracker_};
  forms::Command view_information{sheet, "Command3", "View &Information"};
  forms::Command view_maintenance{sheet, "Command4", "View Main&tenance"};
  forms::Command view_repairs{sheet, "Command5", "View &Repairs/Expend."};
  forms::Command view_history{sheet, "Command6", "View &History"};
  forms::Command view_fuel{sheet, "Command15", "View &Fuel Tracker"};
  forms::Command next_to_schedule{sheet, "Command11", "&Next - Move to Next Input File"};
  forms::Command next_to_repairs{sheet, "Command12", "&Next - Move to Next Input File"};
  forms::Command finish{sheet, "Command13", "&Save File && Exit Create Routine"};
  forms::Command create{sheet, "Command7", "&Create New File"};
  forms::Command view{sheet, "Command2", "&View Existing File"};
  forms::Command remove{sheet, "Command8", "&Delete Existing File"};
  forms::Command save{sheet, "Command10", "&Save"};
  forms::Command print_options{sheet, "Command9", "&Print Options"};
  forms::Command exit{sheet, "Command1", "E&xit", {.cancel = true}};
  CalculatorPanel calculator{*this, tracker_};
  parts::PicturePanel picture_choice{*this,
                                     context_,
                                     {.caption = "Select the Picture of the Vehicle",
                                      .folder = settings::PictureFolder::kVehicles,
                                      .longest_path = 255,
                                      .keeps_quotes = false}};
  forms::Panel searching{*this, "SSPanel9", "Searching Files..."};
  forms::ProgressBar progress{searching, "ProgressBar1", "Vehicles searched"};
  VehiclePrint print{*this, tracker_};

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 private:
  static constexpr int kHelpPage = 3070;
  enum class State { kNone, kCreating, kOpen };
  enum class Pane { kInformation, kMaintenance, kRepairs, kHistory, kFuel };

  // What is on show.
  void Connect();
  void ConnectPanes();
  void BuildMenus();
  void ShowState(State state);
  void ShowPane(Pane pane);
  void ShowUnit();
  void ShowDateChecker();
  void SetUnit(settings::DistanceUnit unit);
  void SetDateChecker(bool on);
  void GoToPane(Pane pane);
  // Offers to save before an action that leaves the vehicle on show. False where it isn't wanted.
  bool OfferToSave();
  bool EndEdit();
  void Changed();
  void Recompute();
  bool HasVehicle();

  // The vehicle: opening, creating, saving, deleting.
  // With that slot's vehicle selected; 0 for none.
  void FillList(int slot);
  void PickFile();
  void OpenVehicle(const Vehicle& vehicle);
  void CloseVehicle();
  void ReportCutFiles();
  void Create();
  void ViewExisting();
  bool IsComplete();
  void NextToSchedule();
  parts::SaveResult Finish();
  parts::SaveResult Save();
  parts::SaveResult SaveOpen();
  storage::Outcome WriteFiles(const std::vector<FuelEntry>& fuel_rows);
  storage::Outcome WriteHistories();
  bool SettleFuel(std::vector<FuelEntry>& rows);
  void ShowSaved();
  bool RemoveFuel(const std::vector<FuelEntry>& rest);
  bool RemoveHistory(HistoryKind kind, const HistoryEntry& removed);
  void DeleteFile();
  // Before another vehicle takes the place of this one.
  bool Settle();

  // Paper.
  PrintedVehicle Printed() const;
  void OpenPrint();
  void OpenWorksheet();
  void OpenAllDue();
  std::vector<PrintedVehicle> Search(const Nearness& wanted);

  parts::SaveQuestion question_{context_, [this] { return Save(); }};
  parts::ColorChoice colors_{context_, settings::PanelColor::kVehicles};
  std::vector<Vehicle> vehicles_;  // in the order of the list
  State state_ = State::kNone;
  Pane pane_ = Pane::kInformation;
  Vehicle open_;
  VehicleSheet stored_;  // of the open vehicle
  History maintenance_;
  History repairs_;
  bool fuel_is_cut_ = false;
  bool has_declined_ = false;  // to save when the pane changed, and changed nothing since
  bool has_schedule_ = false;  // of a vehicle that is being created
  std::vector<forms::Control*> editors_;  // that change the vehicle
};

}  // namespace tarnwell::vehicles
