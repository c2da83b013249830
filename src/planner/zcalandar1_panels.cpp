// What takes the place of the planner's rows, and what runs over them.

#include "forms/disk_trouble.h"
#include "planner/row_texts.h"
#include "planner/zcalandar1.h"
#include "proofing/spelling.h"
#include "text/letters.h"

namespace tarnwell::planner {

// A panel takes the rows' place; what works on the rows waits until it is closed.
void Zcalandar1::CoverRows(forms::Panel& panel) {
  day.SetVisible(false);
  panel.SetVisible(true);
  EnableMenus();
}

void Zcalandar1::UncoverRows(forms::Panel& panel) {
  panel.SetVisible(false);
  day.SetVisible(true);
  EnableMenus();
}

void Zcalandar1::OpenRecurrence(int row) {
  const auto i = static_cast<std::size_t>(row);
  if (!loaded_ || text::Trim(entries[i].text()).empty()) return;
  if (unsaved_) {
    // The rows stay on the screen, saved or not; the button is to be pressed again.
    OfferToSave("Save changes/entries before next action?", SaveNote::kNone);
    return;
  }
  recurrence_buttons[i].SetSelected(true);
  row_of_recurrence_ = row;
  picker.SetVisible(false);  // the date on screen holds until the panel is closed
  clock.SetVisible(false);
  CoverRows(recurrence.panel);
  recurrence.Open(*loaded_, {times[i].text(), entries[i].text()});
}

void Zcalandar1::CloseRecurrence() {
  recurrence_buttons[static_cast<std::size_t>(row_of_recurrence_)].SetSelected(false);
  UncoverRows(recurrence.panel);
  picker.SetVisible(true);
  clock.SetVisible(true);
  entries[static_cast<std::size_t>(row_of_recurrence_)].Focus();
}

void Zcalandar1::ViewMonth() {
  SetStatus("View Month");
  const bool was_unsaved = unsaved_;
  if (!LeaveLoadedDay()) return SetStatus({});
  if (was_unsaved) ShowDay(loaded_);
  if (!loaded_) return SetStatus({});  // the day can't be read any more
  if (const auto filled = pages.month.Fill(context_.folder, *loaded_); !filled) {
    forms::TellUnreadable(context_, "The month", filled.fault());
    return SetStatus({});
  }
  picker.SetVisible(false);  // the month on screen holds until the panel is closed
  CoverRows(pages.month.panel);
}

void Zcalandar1::CloseMonth() {
  UncoverRows(pages.month.panel);
  picker.SetVisible(true);
  SetStatus({});
}

// Over the rows or the month, whichever is on the screen.
void Zcalandar1::OpenBackground() {
  below_background_ = day.visible() ? &day : &pages.month.panel;
  below_background_->SetVisible(false);
  picker.SetVisible(false);
  background.Open();
  EnableMenus();
}

void Zcalandar1::CloseBackground() {
  below_background_->SetVisible(true);
  picker.SetVisible(below_background_ == &day);
  EnableMenus();
}

void Zcalandar1::PrintDay() {
  if (loaded_) pages.PrintDay(*loaded_, Rows(), day);
}

void Zcalandar1::ClosePrint() {
  picker.SetVisible(day.visible());
  EnableMenus();
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
  day.SetVisible(false);
  picker.SetEnabled(false);
  todo_import.Run(on_screen);
  picker.SetEnabled(true);
  day.SetVisible(true);
  picker.SetDate(on_screen);
  ShowDay(on_screen);
}

}  // namespace tarnwell::planner
