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

void Zcalandar1::Save() {
  if (loaded_) SaveUnder(*loaded_);
}

// The rows are put in order on the screen once they are on the disk: what couldn't be saved stays
// as it was typed.
Zcalandar1::SaveResult Zcalandar1::SaveUnder(text::Date date, SaveNote note) {
  if (!HasRows(Rows()) &&
      !Confirmed({"Save", "There are currently No Entries to Save!\nSave anyway?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return SaveResult::kDeclined;
  }
  const forms::Hourglass hourglass(context_.window);
  const DayRows sorted = SortDay(Rows(), static_cast<SortTimeOption>(sort_time.chosen()));
  if (const auto written = WriteDay(context_.folder, date, sorted); !written) {
    forms::TellNotSaved(context_, date_caption.caption(), written.fault());
    return SaveResult::kFailed;
  }
  ShowRows(sorted);
  unsaved_ = false;
  EnableCommands(true, true);
  if (note == SaveNote::kShown) {
    Message({"Save File Command", "Entries Have Been Time Sorted and File Saved.",
             forms::Icon::kInformation});
  }
  return SaveResult::kSaved;
}

Zcalandar1::SaveResult Zcalandar1::OfferToSave(const char* question, SaveNote note) {
  return Confirmed({kTitle, question, forms::Icon::kQuestion, forms::Buttons::kYesNo})
             ? SaveUnder(*loaded_, note)
             : SaveResult::kDeclined;
}

bool Zcalandar1::MayLeave(SaveResult result) {
  return result != SaveResult::kFailed || forms::AskToLeaveUnsaved(context_);
}

// Offers to save the day on screen before something else takes its place. False, with the picker
// back on that day, when it is to stay: the rows are all that is left of the user's work. The rows
// count as unsaved until they are replaced.
bool Zcalandar1::LeaveLoadedDay() {
  if (!unsaved_ || !loaded_) return true;
  if (MayLeave(OfferToSave("Save changes/entries before next action?"))) return true;
  picker.SetDate(loaded_);
  return false;
}

void Zcalandar1::Exit() {
  if (unsaved_ && loaded_) {
    const forms::Answer answer = Message({kTitle, "Save changes/entries before exiting?",
                                          forms::Icon::kQuestion, forms::Buttons::kYesNoCancel});
    if (answer == forms::Answer::kCancel) return;
    if (answer == forms::Answer::kYes && !MayLeave(SaveUnder(*loaded_))) return;
  }
  if (!colors.Leave(forms::Buttons::kYesNoCancel)) return;
  context_.navigator.Unload(*this);
}

bool Zcalandar1::QueryUnload(forms::UnloadCause) {
  if (unsaved_ && loaded_ && !MayLeave(OfferToSave("Save changes/entries before exiting?"))) {
    return false;
  }
  return colors.Leave(forms::Buttons::kYesNo);
}

void Zcalandar1::StoreSortTime(int option) {
  const auto stored = settings::WriteSortTime(context_.folder, option);
  if (!stored) forms::TellNotSaved(context_, "The Sort Time choice", stored.fault());
}

}  // namespace tarnwell::planner
