// How the entry screen keeps, changes and deletes a record.

#include <algorithm>

#include "forms/disk_trouble.h"
#include "record_book/entry_screen.h"
#include "record_book/record_store.h"

namespace tarnwell::record_book {

BookRecord EntryScreen::Content() const {
  BookRecord content;
  for (int entry = 0; entry <= last_entry(); ++entry) content.entries.push_back(TextOf(entry));
  content.picture = picture_path_.empty() ? style_.picture.none_stored : picture_path_;
  return content;
}

bool EntryScreen::HasContent() const {
  for (int entry = 0; entry <= last_entry(); ++entry) {
    if (!TextOf(entry).empty()) return true;
  }
  return false;
}

parts::SaveResult EntryScreen::Save() { return is_entry() ? SaveNew() : SaveChanged(); }

bool EntryScreen::HasName() {
  if (!TextOf(0).empty()) return true;
  save_stopped_ = true;
  const auto missing = is_entry() ? style_.name_missing : style_.changed_name_missing;
  Message({"Save", std::string(missing), forms::Icon::kInformation});
  ControlOf(0).Focus();
  return false;
}

// The last place of a book that is full is used again and again.
bool EntryScreen::ReplacesLast(int record) {
  return record != kOverflowRecord || !IsTaken(context_.folder, *style_.book, record) ||
         Confirmed({"Save",
                    "There is no free place any more: this entry would take the place of the last "
                    "one that was saved.\n\nSave it all the same?",
                    forms::Icon::kExclamation, forms::Buttons::kYesNo, 2});
}

parts::SaveResult EntryScreen::SaveNew() {
  if (!HasName()) return parts::SaveResult::kDeclined;
  const BookRecord content = Content();
  storage::Fault fault = storage::Fault::kNone;
  const auto saved = [&]() -> std::optional<bool> {
    const forms::Hourglass hourglass(context_.window);
    const auto record = FreeRecord(context_.folder, *style_.book, &fault);
    if (!record) return false;
    if (!ReplacesLast(*record)) return std::nullopt;
    const auto written = WriteNew(context_.folder, *style_.book, *record, content);
    fault = written.fault();
    return static_cast<bool>(written);
  }();
  if (!saved) {
    save_stopped_ = true;
    return parts::SaveResult::kDeclined;
  }
  if (!*saved) {
    forms::TellNotSaved(context_, "This entry", fault);
    return parts::SaveResult::kFailed;
  }
  ClearEntries();
  ShowNames();
  Enter(State::kEntry);
  ControlOf(0).Focus();
  SetStatus(NameOf(*style_.book, content) + " has been saved.");
  return parts::SaveResult::kSaved;
}

parts::SaveResult EntryScreen::SaveChanged() {
  if (!HasName()) return parts::SaveResult::kDeclined;
  const BookRecord content = Content();
  const auto written = [&] {
    const forms::Hourglass hourglass(context_.window);
    return WriteChanged(context_.folder, *style_.book, record_, content);
  }();
  if (!written) {
    forms::TellNotSaved(context_, "This entry", written.fault());
    return parts::SaveResult::kFailed;
  }
  const int record = record_;
  Forget(place_);
  const std::string item = ChangedItem(NameOf(*style_.book, content), record);
  const std::size_t place = PlaceOf(entries_, item);
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(place), {item, RecordOf(item)});
  names.InsertItem(static_cast<int>(place), NameIn(entries_[place]));
  names.Select(forms::ListBox::kNone);
  ShowCount();
  ClearEntries();
  Enter(State::kNoRecord);
  search.Focus();
  SetStatus(NameOf(*style_.book, content) + " has been saved.");
  return parts::SaveResult::kSaved;
}

void EntryScreen::Forget(int place) {
  entries_.erase(entries_.begin() + place);
  names.RemoveItem(place);
  ShowCount();
}

void EntryScreen::Delete() {
  const std::string before = status();
  SetStatus("Delete File");
  const bool is_wanted =
      Confirmed({"Delete Current File",
                 "Do You really want to delete\n" + NameOf(*style_.book, Content()) + " file?",
                 forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
  SetStatus(before);
  if (!is_wanted) return;
  const bool is_last = entries_.size() == 1;
  const auto deleted = DeleteRecord(context_.folder, *style_.book, record_, is_last);
  if (!deleted) {
    return forms::TellRefused(context_, "This entry's deletion", deleted.fault(),
                              "It may still be listed when this screen is opened again.");
  }
  Forget(place_);
  search.SetText({});
  searched_.clear();
  ClearEntries();
  if (is_last) {
    ShowScreen(true);
    return;
  }
  Enter(State::kNoRecord);
  search.Focus();
}

std::optional<forms::Draft> EntryScreen::TakeDraft() {
  const BookLayout& book = *style_.book;
  forms::Draft draft{std::string(is_entry() ? style_.entry_caption : style_.view_caption),
                     {std::string(book.records), std::string(book.index)},
                     {}};
  if (!TextOf(0).empty()) draft.title += " - " + TextOf(0);
  draft.Add(record_);
  draft.Add(picture_path_);
  for (int entry = 0; entry <= last_entry(); ++entry) draft.Add(TextOf(entry));
  return draft;
}

bool EntryScreen::PutDraft(forms::DraftTexts texts) {
  const int record = texts.NextNumber();
  if (!ShowScreen(record == 0)) return false;
  if (record != 0) {
    const auto found = std::ranges::find(entries_, record, &NameEntry::record);
    if (found == entries_.end()) return false;
    const int place = static_cast<int>(found - entries_.begin());
    names.Select(place);
    searched_ = names.text();
    search.SetText(searched_);
    Read(place);
    if (record_ != record) return false;
    Enter(State::kModifying);
  }
  ShowPicture(texts.Next());
  for (int entry = 0; entry <= last_entry(); ++entry) SetTextOf(entry, texts.Next());
  question_.SetUnsaved(true);
  EnableCommands();
  return true;
}

}  // namespace tarnwell::record_book
