// What takes the place of the planner's rows, and what runs over them.

#include "forms/disk_trouble.h"
#include "planner/row_texts.h"
#include "planner/zcalandar1.h"
#include "proofing/spelling.h"
#include "text/letters.h"

namespace tarnwell::planner {

void Zcalandar1::OpenRecurrence(int row) {
  const auto i = static_cast<std::size_t>(row);
  if (!loaded_ || text::Trim(entries[i].text()).empty()) return;
  if (question_.unsaved()) {
    // The rows stay on the screen, saved or not; the button is to be pressed again.
    question_.Offer({.title = "Daily Planner"}, [this] { return Save(SaveNote::kNone); });
    return;
  }
  recurrence_buttons[i].SetSelected(true);
  row_of_recurrence_ = row;
  recurrence.panel.SetVisible(true);
  recurrence.Open(*loaded_, {times[i].text(), entries[i].text()});
}

void Zcalandar1::CloseRecurrence() {
  recurrence_buttons[static_cast<std::size_t>(row_of_recurrence_)].SetSelected(false);
  recurrence.panel.SetVisible(false);
  entries[static_cast<std::size_t>(row_of_recurrence_)].Focus();
}

void Zcalandar1::ViewMonth() {
  SetStatus("View Month");
  const bool was_unsaved = question_.unsaved();
  if (!LeaveLoadedDay()) return SetStatus({});
  if (was_unsaved) ShowDay(loaded_);
  if (!loaded_) return SetStatus({});  // the day can't be read any more
  if (const auto filled = pages.month.Fill(context_.folder, *loaded_); !filled) {
    forms::TellUnreadable(context_, "The month", filled.fault());
    return SetStatus({});
  }
  pages.month.panel.SetVisible(true);
}

void Zcalandar1::PrintDay() {
  if (loaded_) pages.PrintDay(*loaded_, Rows());
}

void Zcalandar1::Copy() {
  if (pages.month.panel.visible()) return pages.CopyMonth();
  if (loaded_) pages.CopyDay(*loaded_, Rows());
}

void Zcalandar1::CheckSpelling() {
  SetStatus("Spelling Check");
  RowTexts texts(entries);
  texts.on_show = [this](int row) { TakeRowInHand(row); };
  texts.on_replace = [this] { MarkChanged(); };
  const proofing::SpellingResult result = proofing::CheckSpelling(context_, texts);
  proofing::ReportCheckedEntries(context_, "Spelling Check", !result.changes.empty());
  SetStatus(proofing::CorrectedNote(result.changes.size()));
}

void Zcalandar1::ImportToDo() {
  if (!loaded_ || !todo_import.Confirmed()) return;
  // The day is read again at the end, which would drop what isn't saved.
  if (!LeaveLoadedDay()) return;
  const text::Date on_screen = *loaded_;
  if (!todo_import.Open()) return;
  todo_import.Run(on_screen);
  picker.SetDate(on_screen);
  ShowDay(on_screen);
}

}  // namespace tarnwell::planner
