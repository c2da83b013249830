// How the planner's day is saved, and left.

#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "planner/day_copy.h"
#include "planner/day_sort.h"
#include "planner/day_store.h"
#include "planner/zcalandar1.h"
#include "settings/planner_settings.h"

namespace tarnwell::planner {
namespace {

constexpr const char* kTitle = "Daily Planner";

}  // namespace

// The rows are put in order on the screen once they are on the disk: what couldn't be saved stays
// as it was typed.
parts::SaveResult Zcalandar1::Save(SaveNote note) {
  if (!HasRows(Rows()) &&
      !Confirmed({"Save", "There are currently No Entries to Save!\nSave anyway?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return parts::SaveResult::kDeclined;
  }
  const forms::Hourglass hourglass(context_.window);
  const DayRows sorted = SortDay(Rows(), static_cast<SortTimeOption>(sort_time.chosen()));
  if (const auto written = WriteDay(context_.folder, *loaded_, sorted); !written) {
    forms::TellNotSaved(context_, date_caption.caption(), written.fault());
    return parts::SaveResult::kFailed;
  }
  ShowRows(sorted);
  question_.SetUnsaved(false);
  EnableCommands(true, true);
  if (note == SaveNote::kShown) {
    Message({"Save File Command", "Entries Have Been Time Sorted and File Saved.",
             forms::Icon::kInformation});
  }
  return parts::SaveResult::kSaved;
}

// Offers to save the day on screen before something else takes its place. False, with the picker
// back on that day, when it is to stay: the rows are all that is left of the user's work. The rows
// count as unsaved until they are replaced.
bool Zcalandar1::LeaveLoadedDay() {
  if (question_.Settle({.title = kTitle})) return true;
  picker.SetDate(loaded_);
  return false;
}

bool Zcalandar1::QueryUnload(forms::UnloadCause cause) {
  const auto buttons =
      cause == forms::UnloadCause::kCommand ? forms::Buttons::kYesNoCancel : forms::Buttons::kYesNo;
  return question_.Settle({kTitle, "Save changes/entries before exiting?", buttons}) &&
         colors.Leave(buttons);
}

std::optional<forms::Draft> Zcalandar1::TakeDraft() {
  if (!loaded_) return std::nullopt;
  forms::Draft draft{std::string(kTitle) + " - " + date_caption.caption(),
                     {PlannerYearFileName(text::YearOf(*loaded_))},
                     {}};
  draft.Add(*loaded_);
  for (const DayRow& row : Rows()) {
    draft.Add(row.time);
    draft.Add(row.entry);
  }
  return draft;
}

bool Zcalandar1::PutDraft(forms::DraftTexts texts) {
  const auto date = texts.NextDate();
  if (!date) return false;
  picker.SetDate(*date);
  ShowDay(date);
  if (loaded_ != date) return false;
  DayRows rows;
  for (DayRow& row : rows) row = {texts.Next(), texts.Next()};
  ShowRows(rows);
  MarkChanged();
  return true;
}

void Zcalandar1::StoreSortTime(int option) {
  const auto stored = settings::WriteSortTime(context_.folder, option);
  if (!stored) forms::TellNotSaved(context_, "The Sort Time choice", stored.fault());
}

}  // namespace tarnwell::planner
