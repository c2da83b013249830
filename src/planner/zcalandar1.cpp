#include "planner/zcalandar1.h"

#include <algorithm>

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "planner/day_copy.h"
#include "planner/day_store.h"
#include "settings/planner_settings.h"
#include "storage/file_names.h"
#include "text/date_mask.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr int kPlannerHelp = 3060;

// Every half hour from 6:00 AM to 10:00 PM.
std::vector<std::string> TimesOffered() {
  std::vector<std::string> times;
  for (int minutes = 6 * 60; minutes <= 22 * 60; minutes += 30) {
    times.push_back(text::FormatDate({text::MakeDate(2000, 1, 1), std::chrono::minutes(minutes)},
                                     "h:nn AM/PM"));
  }
  return times;
}

}  // namespace

Zcalandar1::Zcalandar1(forms::Context& context)
    : Form(context, forms::form_names::kZcalandar1,
           "Tools and Program Information - Daily Planner"),
      calendar_options(*this, context),
      recurrence(*this, context),
      pages(*this, context),
      background(*this, context, settings::GridBackground::kPlanner),
      colors(context, settings::PanelColor::kPlanner),
      todo_import(*this, context),
      question_(context, [this] { return Save(); }) {
  question_.on_change = [this] { SetUnsaved(question_.unsaved()); };
  exit.SetCancel(true);
  picker.on_pick = [this] { PickDay(); };
  timer.on_tick = [this] {
    clock.SetCaption(text::FormatDate(context_.clock.Now(), "h:nn AM/PM"));
    picker.SetToday(context_.clock.Today());
  };
  time_picker.on_pick = [this] { PickTime(); };
  sort_time.on_pick = [this](int index) { StoreSortTime(index); };
  save.on_click = [this] {
    if (loaded_) Save();
  };
  clear_entries.on_click = [this] { ClearEntries(); };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  calendar_options.on_change = [this] { picker.SetLook(LookOf(calendar_options.options())); };
  calendar_options.on_close = [this] { calendar_options.panel.SetVisible(false); };
  recurrence.on_run = [this] { ShowDay(loaded_); };
  recurrence.on_close = [this] { CloseRecurrence(); };
  view_month.on_click = [this] { ViewMonth(); };
  pages.month.close.on_click = [this] {
    pages.month.panel.SetVisible(false);
    SetStatus({});
  };
  print_options.on_click = [this] { PrintDay(); };
  check_spelling.on_click = [this] { CheckSpelling(); };
  background.on_apply = [this](const forms::GridLook& look) { pages.month.grid.SetLook(look); };
  colors.on_change = [this] { ShowColors(); };
  CoverRows();
  BuildRows();
  BuildMenus();
}

// Each of these takes the rows' place. Most hide the picker too: what they show holds for the date
// on screen.
void Zcalandar1::CoverRows() {
  calendar_options.panel.Cover({&day});
  todo_import.panel.Cover({&day});
  recurrence.panel.Cover({&day, &picker, &clock});
  pages.month.panel.Cover({&day, &picker});
  for (forms::Panel* panel : {&pages.print.panel, &pages.exporting.panel, &background.panel}) {
    panel->Cover({&day, &pages.month.panel, &picker});
  }
}

void Zcalandar1::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  const auto copy = [this] { Copy(); };
  const std::vector<forms::Control*> copied{&view_month,
                                            &pages.month.grid};  // the day or the month
  options.AddCommand("mOS", "&Save", save).SetKey("Ctrl+S");
  options.AddCommand("mOClr", "Clear &Entries", clear_entries);
  options.AddCommand("mOV", "&View Entire Month", view_month);
  options.AddCommand("mOP", "&Print Options", print_options).SetKey("Ctrl+P");
  options.AddCommand("mOSpell", "Spelling Chec&k", check_spelling).SetKey("F7");
  options.AddEntry("mOCopy", "&Copy", {copy, copied});
  options.AddEntry("mOCal", "Calendar &Display Options",
                   {[this] { calendar_options.panel.SetVisible(true); }, {&day}});
  options.AddEntry("mOCalDev", "Calendar Developer",
                   [this] { context_.navigator.Show(forms::form_names::kCalendar); });
  options.AddEntry("mToDo", "Import To Do List Items", {[this] { ImportToDo(); }, {&day}});
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddEntry("mOTC", "&Text Color", [this] { colors.Choose(parts::ColorTarget::kText); });
  options.AddEntry("mOGB", "&Grid Background",
                   {[this] { background.Open(); }, {&day, &pages.month.panel}});
  options.AddSeparator();
  options.AddEntry("mOE", "E&xit",
                   [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); });
  forms::MenuItem& edit = menus().AddSubmenu("mE", "&Edit");
  edit.AddEntry("mECopy", "&Copy", {copy, copied});
  edit.AddEntry("mECopyDay", "C&opy all entries for pasteing to another day",
                {[this] { CopyDay(); }, {&day}});
  paste_entry_ = &edit.AddEntry("mEPaste", "&Paste all entries from another day",
                                {[this] { PasteCopiedDay(); }, {&day}});
  paste_entry_->SetEnabled(false);
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  const parts::BackupEntries entries_of_backup = parts::AddBackupEntries(
      utilities, context_,
      {.set = parts::kPlannerSet,
       .backup = "&Backup Selected Year File to Disk",
       .restore = "&Restore Selected Year File from Disk",
       .settle = [this] { return LeaveLoadedDay() && colors.Leave(forms::Buttons::kYesNoCancel); },
       .year = [this] { return YearOnShow(); },
       .reload = [this] { ReadAnew(); }});
  utilities.on_open = [this, &backup = entries_of_backup.backup] {
    backup.SetEnabled(context_.folder.Length(storage::file_names::PlannerYear(YearOnShow())) > 0);
  };
  utilities.AddEntry("mUExport", "Export File in Excel/Spreadsheet Format",
                     {[this] { pages.ExportMonth("Daily Planner.xls"); }, {&pages.month.panel}});
  SetPopupMenu(options);
  SetHelpContext(kPlannerHelp);
  parts::AddHelpMenu(*this, context_);
}

void Zcalandar1::BuildRows() {
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    const int row = static_cast<int>(i);
    const std::string number = std::to_string(row + 1);
    times[i].SetSpokenName("Time " + number);
    entries[i].SetSpokenName("Appointment/Activity " + number);
    for (forms::TextField* field : {&times[i], &entries[i]}) {
      field->on_focus = [this, row] { TakeRowInHand(row); };
      field->on_change = [this, row] { Typed(row); };
      field->on_click = [this] {
        if (!loaded_) RefuseRowWithoutDay();
      };
    }
    times[i].on_arrow = [this, i](int step) { WalkRows(times, i, step); };
    entries[i].on_arrow = [this, i](int step) { WalkRows(entries, i, step); };
    times[i].on_enter = [this, i] { entries[i].Focus(); };
    entries[i].on_enter = [this, i] { times[(i + 1) % kRowsPerDay].Focus(); };
    recurrence_buttons[i].SetSpokenName("Recurrence Option " + number);
    recurrence_buttons[i].on_click = [this, row] { OpenRecurrence(row); };
  }
}

void Zcalandar1::Load() {
  const forms::Hourglass hourglass(context_.window);
  time_picker.SetItems(TimesOffered());
  calendar_options.Load();
  picker.SetLook(LookOf(calendar_options.options()));
  sort_time.Choose(settings::ReadSortTime(context_.folder));
  background.Load();
  colors.Load();
  timer.Tick();
  picker.SetDate(context_.clock.Today());
  ShowDay(picker.date());
  times[0].Focus();
}

int Zcalandar1::YearOnShow() {
  return static_cast<int>(picker.date().value_or(context_.clock.Today()).year());
}

// The settings and the day, as the files hold them now.
void Zcalandar1::ReadAnew() {
  calendar_options.Load();
  picker.SetLook(LookOf(calendar_options.options()));
  sort_time.Choose(settings::ReadSortTime(context_.folder));
  background.Load();
  colors.Load();
  ShowDay(picker.date());
}

void Zcalandar1::TakeRowInHand(int row) {
  row_in_hand_ = row;
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    times[i].SetMarked(static_cast<int>(i) == row);
    entries[i].SetMarked(static_cast<int>(i) == row);
  }
  ShowTimeOfRow();
}

// The picker stands on the row's own time, where that is one of its times.
void Zcalandar1::ShowTimeOfRow() {
  const std::string time = text::Trim(times[static_cast<std::size_t>(row_in_hand_)].text());
  const auto& offered = time_picker.items();
  const auto found = std::ranges::find_if(
      offered, [&](const std::string& item) { return text::EqualIgnoringCase(item, time); });
  time_picker.Select(found == offered.end() ? forms::ComboBox::kNone
                                            : static_cast<int>(found - offered.begin()));
}

void Zcalandar1::WalkRows(forms::ControlArray<forms::TextField, kRowsPerDay>& column,
                          std::size_t row, int step) {
  const int target = static_cast<int>(row) + step;
  if (target >= 0 && target < kRowsPerDay) column[static_cast<std::size_t>(target)].Focus();
}

void Zcalandar1::Typed(int row) {
  if (!loaded_) {
    times[static_cast<std::size_t>(row)].SetText({});
    entries[static_cast<std::size_t>(row)].SetText({});
    return RefuseRowWithoutDay();
  }
  ShowTimeOfRow();
  MarkChanged();
}

void Zcalandar1::RefuseRowWithoutDay() {
  Message({"Data Entry", "Please select a Day before entering data!", forms::Icon::kInformation});
  EnableRows(false);
}

void Zcalandar1::EnableRows(bool enabled) {
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    times[i].SetEnabled(enabled);
    entries[i].SetEnabled(enabled);
  }
  time_picker.SetEnabled(enabled);
}

void Zcalandar1::PickTime() {
  if (!loaded_) return;
  const auto row = static_cast<std::size_t>(row_in_hand_);
  times[row].SetText(time_picker.text());
  entries[row].Focus();
  MarkChanged();
}

void Zcalandar1::PickDay() {
  if (picker.date() == loaded_ || !LeaveLoadedDay()) return;
  ShowDay(picker.date());
}

void Zcalandar1::ShowDay(std::optional<text::Date> date) {
  auto fault = storage::Fault::kNone;
  const auto stored = date ? ReadDay(context_.folder, *date, &fault) : std::nullopt;
  loaded_ = stored ? date : std::nullopt;
  question_.SetUnsaved(false);
  EnableRows(fault == storage::Fault::kNone);
  ShowRows(stored ? stored->rows : DayRows{});
  EnableCommands(stored.has_value(), stored && stored->saved);
  const char* mask = context_.variables.day_first() ? "dd mmmm, yyyy - ddd" : "mmmm dd, yyyy - ddd";
  const std::string shown = date ? text::FormatDate(*date, mask) : std::string();
  date_caption.SetCaption(fault == storage::Fault::kNone
                              ? shown
                              : shown + " can't be read: " + std::string(forms::ReasonOf(fault)) +
                                    ".");
}

void Zcalandar1::ShowRows(const DayRows& rows) {
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    times[i].SetText(rows[i].time);
    entries[i].SetText(rows[i].entry);
  }
  MarkRowsWithoutText();
  ShowTimeOfRow();
}

// A recurrence needs a text.
void Zcalandar1::MarkRowsWithoutText() {
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    recurrence_buttons[i].SetNoDrop(text::Trim(entries[i].text()).empty());
  }
}

void Zcalandar1::MarkChanged() {
  question_.SetUnsaved(true);
  EnableCommands(true, true);
  MarkRowsWithoutText();
}

void Zcalandar1::EnableCommands(bool day_commands, bool clear_commands) {
  save.SetEnabled(day_commands);
  view_month.SetEnabled(day_commands);
  clear_entries.SetEnabled(clear_commands);
}

DayRows Zcalandar1::Rows() {
  DayRows rows;
  for (std::size_t i = 0; i < kRowsPerDay; ++i) rows[i] = {times[i].text(), entries[i].text()};
  return rows;
}

void Zcalandar1::ShowColors() {
  for (forms::Panel* panel :
       {&day, &pages.month.panel, &pages.print.panel, &pages.exporting.panel, &background.panel,
        &recurrence.panel, &calendar_options.panel, &todo_import.panel}) {
    panel->SetBackground(colors.panel());
  }
  for (std::size_t i = 0; i < kRowsPerDay; ++i) {
    times[i].SetColor(colors.text());
    entries[i].SetColor(colors.text());
  }
}

void Zcalandar1::ClearEntries() {
  SetStatus("Clear Entries");
  if (!HasRows(Rows())) {
    Message(
        {"Clear Entries", "There are currently No Entries to Clear!", forms::Icon::kInformation});
  } else if (Confirmed({"Clear Entries", "Clear all Entries for " + date_caption.caption() + "?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2})) {
    ShowRows({});
    MarkChanged();
  }
  SetStatus({});
}

void Zcalandar1::CopyDay() {
  copied_ = Rows();
  paste_entry_->SetEnabled(HasRows(copied_));
  if (HasRows(copied_)) return;
  Message({"Copy all entries for pasteing to another day", "No Entries to Copy have been found!",
           forms::Icon::kInformation});
}

void Zcalandar1::PasteCopiedDay() {
  if (!loaded_) return RefuseRowWithoutDay();
  DayRows rows = Rows();
  if (!PasteDay(rows, copied_)) return;
  ShowRows(rows);
  MarkChanged();
}

}  // namespace tarnwell::planner
