#include "record_book/entry_screen.h"

#include <algorithm>

#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "print/report.h"
#include "record_book/record_store.h"

namespace tarnwell::record_book {
namespace {

constexpr parts::SaveWords kBeforeNext{.title = "Entry/View Screen",
                                       .text = "Save changes made to data?",
                                       .buttons = forms::Buttons::kYesNoCancel};
constexpr parts::SaveWords kBeforeExit{.title = "Entry/View Screen",
                                       .text = "Save changes made to data before exiting?",
                                       .buttons = forms::Buttons::kYesNo};

}  // namespace

EntryScreen::EntryScreen(forms::Context& context, const EntryStyle& style)
    : Form(context, style.form_name, style.entry_caption),
      link(picture_panel, style.picture.command_name, style.picture.command),
      print_file(screen, "Command1(3)", style.print_caption),
      pictures(*this, context, style.picture.panel),
      print(*this, context, {.as_of_caption = {}}),
      colors(context, style.panel_color),
      style_(style),
      question_(context, [this] { return Save(); }) {
  BuildEntries();
  ConnectEntries();
  ConnectCommands();
  BuildMenus();
  SetHelpContext(style.help);
  for (forms::Panel* panel : {&pictures.panel, &print.panel}) panel->Cover({&screen});
}

void EntryScreen::Load() {
  colors.Load();
  ShowScreen(true);
}

bool EntryScreen::QueryUnload(forms::UnloadCause) {
  return Settle(kBeforeExit) && colors.Leave(forms::Buttons::kYesNo);
}

bool EntryScreen::Settle(const parts::SaveWords& words) {
  save_stopped_ = false;
  return question_.Settle(words) && !save_stopped_;
}

bool EntryScreen::SettleAll() {
  return Settle(kBeforeNext) && colors.Leave(forms::Buttons::kYesNoCancel);
}

int EntryScreen::SettleFor(int place) {
  const NameEntry wanted = entries_[static_cast<std::size_t>(place)];
  if (!Settle(kBeforeNext)) return -1;
  // A save may have moved it, or be of that very entry.
  const auto found = wanted.record == 0
                         ? std::ranges::find(entries_, wanted.item, &NameEntry::item)
                         : std::ranges::find(entries_, wanted.record, &NameEntry::record);
  return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

bool EntryScreen::ShowScreen(bool entry) {
  const forms::Hourglass hourglass(context_.window);
  const bool is_readable = ShowNames();
  ClearEntries();
  search.SetText({});
  searched_.clear();
  SetCaption(
      print::WithCompany(context_.variables, entry ? style_.entry_caption : style_.view_caption));
  Enter(entry ? State::kEntry : State::kNoRecord);
  if (entry) {
    ControlOf(0).Focus();
  } else {
    search.Focus();
  }
  return is_readable;
}

// Names that can't all be read are none: the last of some isn't the last of all.
bool EntryScreen::ShowNames() {
  NameList read = ReadNames(context_.folder, *style_.book, BlankSecond::kListed);
  const bool is_readable = read.fault == storage::Fault::kNone;
  entries_ = is_readable ? std::move(read.entries) : std::vector<NameEntry>();
  std::vector<std::string> items;
  items.reserve(entries_.size());
  for (const NameEntry& entry : entries_) items.emplace_back(NameIn(entry));
  names.SetItems(std::move(items));
  ShowCount();
  if (!is_readable) forms::TellUnreadable(context_, "The list of names", read.fault);
  return is_readable;
}

void EntryScreen::ShowCount() {
  count.SetCaption(" " + std::to_string(entries_.size()) + " - Entries ");
}

void EntryScreen::Enter(State state) {
  state_ = state;
  if (!has_record()) {
    record_ = 0;
    place_ = -1;
  }
  list_panel.SetVisible(!is_entry());
  print_file.SetVisible(!is_entry());
  remove.SetVisible(!is_entry());
  mode.SetCaption(is_entry() ? "&View Screen" : "E&ntry Screen");
  change.SetCaption(is_entry() ? "&Clear Current Data" : "&Make Modifications");
  save.SetCaption(is_entry() ? "&Save && New Screen" : "&Save Modifications");
  for (forms::MenuItem* item : of_entry_) item->SetVisible(is_entry());
  for (forms::MenuItem* item : of_view_) item->SetVisible(!is_entry());
  const bool is_locked = state_ == State::kNoRecord || state_ == State::kShown;
  for (auto& field : fields) field->SetLocked(is_locked);
  if (comments) comments->SetLocked(is_locked);
  EnableCommands();
}

void EntryScreen::EnableCommands() {
  const bool has_changes = question_.unsaved();
  save.SetEnabled(has_changes);
  change.SetEnabled(is_entry() ? has_changes : state_ == State::kShown);
  print_file.SetEnabled(has_record());
  remove.SetEnabled(has_record());
  link.SetEnabled(has_record() || (is_entry() && has_changes));
  for (forms::MenuItem* item : of_content_) {
    item->SetEnabled(has_record() || (is_entry() && has_changes));
  }
  print_picture.SetVisible(has_record() && !style_.worksheet.empty());
  large.SetEnabled(!picture_path_.empty());
  small.SetEnabled(!picture_path_.empty());
  StateChanged();
}

void EntryScreen::ClearEntries() {
  for (int entry = 0; entry <= last_entry(); ++entry) SetTextOf(entry, {});
  large.SetChecked(false);
  small.SetChecked(false);
  question_.SetUnsaved(false);
  ShowPicture({});
  SetStatus({});
}

void EntryScreen::ShowPicture(const std::string& path) {
  picture_path_ = path;
  const parts::ShownPicture shown =
      parts::LoadShown(context_, path, style_.picture.most_shown, style_.picture.most_shown);
  picture.SetContent(shown.picture.png);
  picture_note.SetCaption(path.empty() ? style_.picture.none_shown : shown.note);
}

void EntryScreen::SwitchMode() {
  if (!Settle(kBeforeNext)) return;
  const bool to_entry = !is_entry();
  const bool is_readable = ShowScreen(to_entry);
  if (to_entry || !is_readable || !entries_.empty()) return;
  Message({"View Data", "There are currently no files to view,\nuse entry screen to input data."});
  ShowScreen(true);
}

// When the change is to stay, the list shows again the name that it is of.
void EntryScreen::PickName() {
  const int picked = names.selected();
  if (picked == forms::ListBox::kNone || picked == place_) return;
  const int place = SettleFor(picked);
  if (place < 0) return names.Select(place_);
  if (has_record()) {
    ClearEntries();
    Enter(State::kNoRecord);
  }
  names.Select(place);
  searched_ = names.text();
  search.SetText(searched_);
}

void EntryScreen::SearchAsTyped() {
  searched_ = search.text();
  names.Select(searched_.empty() ? forms::ListBox::kNone : FindName(entries_, searched_));
}

void EntryScreen::View() {
  const std::string sought = search.text();
  if (sought.empty() || sought == "Select File Below") {
    Message({"View Command", "Name must first be selected to view"});
    return search.Focus();
  }
  const bool is_picked = names.selected() != forms::ListBox::kNone && sought == searched_;
  const int found = is_picked ? names.selected() : FindName(entries_, sought);
  if (found < 0) {
    Message({"File Search", "No matching file was found!", forms::Icon::kCritical});
    return;
  }
  const int place = SettleFor(found);
  if (place < 0) return;
  names.Select(place);
  searched_ = names.text();
  Read(place);
}

void EntryScreen::Read(int place) {
  const forms::Hourglass hourglass(context_.window);
  ClearEntries();
  Enter(State::kNoRecord);
  const int record = entries_[static_cast<std::size_t>(place)].record;
  if (record == 0) return;
  storage::Fault fault = storage::Fault::kNone;
  const auto read = ReadRecord(context_.folder, *style_.book, record, &fault);
  if (!read) return forms::TellUnreadable(context_, "This entry", fault);
  for (int entry = 0; entry <= last_entry(); ++entry) {
    SetTextOf(entry, read->entries[static_cast<std::size_t>(entry)]);
  }
  const bool has_picture = read->picture.size() >= style_.picture.shortest_path;
  ShowPicture(has_picture ? read->picture : std::string());
  record_ = record;
  place_ = place;
  Enter(State::kShown);
}

void EntryScreen::ChangeOrClear() {
  if (is_entry()) return ClearAll();
  Enter(State::kModifying);
  ControlOf(0).Focus();
}

void EntryScreen::ClearAll() {
  if (!HasContent()) return;
  if (!Confirmed({"Clear Current Data", "Do you really want to clear currently displayed data?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  ClearEntries();
  Enter(State::kEntry);
  ControlOf(0).Focus();
}

// A file that is dropped is taken as one that is entered in the panel.
void EntryScreen::TakeDropped(const std::string& path) {
  std::string why = pictures.WhyNot(path);
  if (!is_entry() && !has_record()) why = "Choose a name first: the picture becomes that entry's.";
  if (why.empty()) return TakePicture(path);
  Message({std::string(style_.picture.panel.caption), why, forms::Icon::kExclamation});
}

void EntryScreen::TakePicture(const std::string& path) {
  ShowPicture(path);
  question_.SetUnsaved(true);
  EnableCommands();
}

}  // namespace tarnwell::record_book
