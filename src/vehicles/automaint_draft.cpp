// What is typed on a vehicle and not saved, kept for the next start.

#include <algorithm>
#include <utility>

#include "storage/file_names.h"
#include "vehicles/automaint.h"

namespace tarnwell::vehicles {
namespace {

// An entry's texts, in one order for both ways.
template <typename Visit>
void ForEachText(ScheduleRow& row, Visit visit) {
  for (std::string* text : {&row.action, &row.distance, &row.months, &row.odometer, &row.date.shown,
                            &row.date.in_file, &row.cost}) {
    visit(*text);
  }
}

template <typename Visit>
void ForEachText(HistoryEntry& entry, Visit visit) {
  for (std::string* text :
       {&entry.odometer, &entry.date.shown, &entry.date.in_file, &entry.text, &entry.cost}) {
    visit(*text);
  }
}

template <typename Visit>
void ForEachText(FuelEntry& entry, Visit visit) {
  for (std::string* text : {&entry.date.shown, &entry.date.in_file, &entry.previous, &entry.current,
                            &entry.driven, &entry.fuel, &entry.rate, &entry.cost}) {
    visit(*text);
  }
}

template <typename Entries>
void AddAll(forms::Draft& draft, Entries entries) {
  draft.Add(static_cast<int>(entries.size()));
  for (auto& entry : entries) {
    ForEachText(entry, [&](std::string& text) { draft.Add(text); });
  }
}

// Without the empty rows at the end, of which a grid shows some of its own.
template <typename Entry>
void AddList(forms::Draft& draft, std::vector<Entry> entries) {
  while (!entries.empty() && entries.back() == Entry{}) entries.pop_back();
  AddAll(draft, std::move(entries));
}

template <typename Entries>
void TakeAll(forms::DraftTexts& texts, Entries& entries) {
  for (auto& entry : entries) {
    ForEachText(entry, [&](std::string& text) { text = texts.Next(); });
  }
}

// No more than the program keeps, whatever the draft says.
template <typename Entry>
std::vector<Entry> TakeList(forms::DraftTexts& texts, std::size_t most) {
  std::vector<Entry> entries(
      std::min<std::size_t>(static_cast<std::size_t>(std::max(0, texts.NextNumber())), most));
  TakeAll(texts, entries);
  return entries;
}

}  // namespace

std::optional<forms::Draft> AutoMaint::TakeDraft() {
  if (state_ == State::kNone) return std::nullopt;
  namespace names = storage::file_names;
  const int slot = open_.slot;
  forms::Draft draft{caption(), {std::string(names::kVehicleSlots)}, {}};
  if (slot > 0) {
    for (const auto& file : {names::VehicleSheet(slot), names::VehicleMaintenance(slot),
                             names::VehicleRepairs(slot), names::VehicleFuel(slot)}) {
      draft.files.push_back(file);
    }
  }
  const std::string name = slot > 0 ? open_.name : information.fields[0]->text();
  if (!name.empty()) draft.title += " - " + name;
  VehicleSheet typed = stored_;
  information.Store(typed);
  draft.Add(slot);
  draft.Add(static_cast<int>(pane_));
  draft.Add(has_schedule_ ? 1 : 0);
  draft.Add(name);
  draft.Add(typed.picture);
  draft.texts.insert(draft.texts.end(), typed.fields.begin() + kYear, typed.fields.end());
  AddAll(draft, maintenance.Rows());
  AddList(draft, repairs.Entries());
  AddList(draft, fuel.Entries());
  return draft;
}

bool AutoMaint::PutDraft(forms::DraftTexts texts) {
  const int slot = texts.NextNumber();
  const int pane = std::clamp(texts.NextNumber(), 0, static_cast<int>(Pane::kFuel));
  const bool has_schedule = texts.NextNumber() != 0;
  const std::string name = texts.Next();
  if (slot == 0) {
    Create();
    information.fields[0]->SetText(name);
  } else {
    FillList(slot);
    const auto vehicle = std::ranges::find(vehicles_, slot, &Vehicle::slot);
    if (vehicle == vehicles_.end()) return false;
    OpenVehicle(*vehicle);
    if (state_ != State::kOpen) return false;
  }
  has_schedule_ = has_schedule;
  VehicleSheet typed = stored_;
  typed.picture = texts.Next();
  for (std::size_t field = kYear; field <= kLastField; ++field) typed.fields[field] = texts.Next();
  if (texts.NextNumber() == static_cast<int>(kScheduleRows)) TakeAll(texts, typed.rows);
  information.Show(typed);
  maintenance.Show(typed.rows);
  const auto paid = TakeList<HistoryEntry>(texts, kMostHistory);
  if (!repairs_.is_cut) repairs.Show(paid);
  const auto filled = TakeList<FuelEntry>(texts, kMostFuel);
  if (!fuel_is_cut_) fuel.Show(filled);
  Recompute();
  ShowPane(static_cast<Pane>(pane));
  Changed();
  return true;
}

}  // namespace tarnwell::vehicles
