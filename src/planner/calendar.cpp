#include "planner/calendar.h"

#include <utility>

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/help_menu.h"
#include "planner/month_view.h"
#include "print/print_pages.h"
#include "settings/planner_settings.h"
#include "settings/print_settings.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/date_mask.h"

namespace tarnwell::planner {
namespace {

constexpr int kCalendarHelp = 3062;
constexpr const char* kSaveTitle = "Save Option";
constexpr parts::SaveWords kLeaving{kSaveTitle, "Save changes made to data before next action?",
                                    forms::Buttons::kYesNoCancel};

std::string TitleOf(text::Date month) {
  return MonthTitle(text::YearOf(month), text::MonthOf(month));
}

}  // namespace

Calendar::Calendar(forms::Context& context)
    : Form(context, forms::form_names::kCalendar,
           "Tools and Program Information - Calendar Developer"),
      colors(context, settings::PanelColor::kCalendarSheet),
      sheet_page_(context.pages.metrics()),
      question_(context, [this] { return Save(); }) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    lines[i].SetSpokenName("Line " + std::to_string(i + 1));
    lines[i].on_change = [this] { Typed(); };
    lines[i].on_enter = [this, i] { lines[(i + 1) % lines.size()].Focus(); };
    lines[i].on_arrow = [this, i](int step) {
      const int target = static_cast<int>(i) + step;
      if (target >= 0 && target < kLinesPerDay) lines[static_cast<std::size_t>(target)].Focus();
    };
  }
  ConnectControls();
  BuildMenus();
  SetHelpContext(kCalendarHelp);
  parts::AddHelpMenu(*this, context_);
}

void Calendar::ConnectControls() {
  question_.on_change = [this] { SetUnsaved(question_.unsaved()); };
  picker.on_pick = [this] { PickDay(); };
  imports.on_pick = [this] { Import(); };
  numbers.on_pick = [this](int) { Redraw(); };
  sort_time.on_pick = [this](int option) { StoreSortTime(option); };
  guide_lines.on_pick = [this](int option) { ChooseGuideLines(option); };
  enter_and_save.on_click = save.on_click = [this] { Save(); };
  font.on_click = [this] { ChooseFont(); };
  print.on_click = [this] { print::PrintPages(context_, sheet_page_.document()); };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  zoom.on_click = [this] { ToggleZoom(); };
  auto_size.on_click = [this] {
    preview.SetZoom(forms::Zoom::kWholePage);
    zoom.SetCaption("Enlarge");
  };
  colors.on_change = [this] { page.SetBackground(colors.panel()); };
}

void Calendar::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  const std::vector<forms::Control*> with_sheet{&save};
  options.AddCommand("mOprint", "&Print", print).SetKey("Ctrl+P");
  options.AddEntry("mOPrtSet", "Printer &Setup", [this] { ChooseSetup(); });
  options.AddEntry("mOCopy", "&Copy", {[this] { Copy(); }, with_sheet});
  options.AddEntry("mODel", "&Delete this Month's Entries and File",
                   {[this] { DeleteMonth(); }, with_sheet});
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddSeparator();
  options.AddEntry("mOE", "E&xit",
                   [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); });
  SetPopupMenu(options);
}

void Calendar::Load() {
  const forms::Hourglass hourglass(context_.window);
  colors.Load();
  numbers.Choose(0);
  sort_time.Choose(settings::ReadSortTime(context_.folder, settings::SortTime::kCalendarSheet));
  const int guides =
      settings::ReadGuideLines(context_.folder, settings::GuideLines::kCalendarSheet);
  guide_lines.Choose(guides);
  preview.SetGuideLines(guides == 1);
  preview.SetZoom(forms::Zoom::kWholePage);
  setup_.landscape = true;  // days are wider than high
  const forms::Margins inside;
  const forms::Margins reach = context_.pages.Reach();
  setup_.margins = {inside.left + reach.left, inside.top + reach.top, inside.right + reach.right,
                    inside.bottom + reach.bottom};
  const text::Date today = context_.clock.Today();
  picker.SetToday(today);
  picker.SetDate(today);
  LoadMonth(today);
  lines[0].Focus();
}

void Calendar::EnableCommands(bool enabled) {
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i].SetEnabled(enabled);
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&imports, &enter_and_save, &save, &font, &print}) {
    control->SetEnabled(enabled);
  }
}

// Another day of the month takes along what is in the sheet already.
void Calendar::PickDay() {
  const text::Date day = *picker.date();
  if (day == loaded_) return;
  const bool is_other_month = MonthOfSheet(day) != MonthOfSheet(loaded_);
  if ((is_other_month || is_typed_) && !question_.Settle(kLeaving)) {
    return picker.SetDate(loaded_);
  }
  if (is_other_month) return LoadMonth(day);
  SetChanges(false, is_changed_);
  ShowDay(day);
  Redraw();
}

void Calendar::LoadMonth(text::Date day) {
  forms::Font usual = context_.variables.PrintFont();
  usual.name = forms::Font().name;
  StoredMonthSheet stored = ReadMonthSheet(context_.folder, day, usual);
  sheet_ = std::move(stored.sheet);
  is_readable_ = stored.fault == storage::Fault::kNone;
  SetChanges(false, false);
  EnableCommands(is_readable_);
  ShowDay(day);
  SetStatus(is_readable_ ? ""
                         : TitleOf(day) + " can't be read: " +
                               std::string(forms::ReasonOf(stored.fault)) + ".");
  Redraw();
}

void Calendar::ShowDay(text::Date day) {
  loaded_ = day;
  day_caption.SetCaption(text::FormatDate(day, "dddd - mmmm d, yyyy"));
  const DayLines& shown = sheet_.DayOf(day);
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i].SetText(shown[i]);
  ShowImports();
}

void Calendar::ShowImports() {
  const std::string day = text::FormatDate(loaded_, "mmmm d, yyyy");
  const std::string month = TitleOf(loaded_);
  imports.SetItems({day + " With Times", day + " WithOut Times", "Month: " + month + " With Times",
                    "Month: " + month + " WithOut Times", "To Do List Items: " + month});
}

void Calendar::Typed() {
  SetChanges(true, is_changed_);
  SetStatus({});
  Redraw();
}

void Calendar::SetChanges(bool typed, bool in_sheet) {
  is_typed_ = typed;
  is_changed_ = in_sheet;
  question_.SetUnsaved(typed || in_sheet);
}

MonthSheet Calendar::Written() {
  MonthSheet sheet = sheet_;
  DayLines& day = sheet.DayOf(loaded_);
  for (std::size_t i = 0; i < lines.size(); ++i) day[i] = storage::WithoutQuotes(lines[i].text());
  return sheet;
}

void Calendar::Redraw() {
  preview.SetDocument(nullptr);
  sheet_page_.Build(setup_, Written(), loaded_, static_cast<NumberSide>(numbers.chosen()));
  preview.SetDocument(&sheet_page_.document());
}

parts::SaveResult Calendar::Save() {
  const forms::Hourglass hourglass(context_.window);
  MonthSheet sheet = Written();
  if (const auto written = WriteMonthSheet(context_.folder, loaded_, sheet); !written) {
    forms::TellNotSaved(context_, "The calendar of " + TitleOf(loaded_), written.fault());
    return parts::SaveResult::kFailed;
  }
  sheet_ = std::move(sheet);
  SetChanges(false, false);
  SetStatus(TitleOf(loaded_) + " has been saved.");
  return parts::SaveResult::kSaved;
}

std::optional<forms::Draft> Calendar::TakeDraft() {
  forms::Draft draft{
      "Calendar - " + TitleOf(loaded_),
      {storage::file_names::CalendarSheet(text::YearOf(loaded_), text::MonthOf(loaded_))},
      {}};
  draft.Add(loaded_);
  const MonthSheet sheet = Written();
  for (const DayLines& day : sheet.days) {
    for (const std::string& line : day) draft.Add(line);
  }
  return draft;
}

// In the font that is stored.
bool Calendar::PutDraft(forms::DraftTexts texts) {
  const auto day = texts.NextDate();
  if (!day) return false;
  picker.SetDate(*day);
  LoadMonth(*day);
  if (!is_readable_) return false;
  for (DayLines& lines_of_day : sheet_.days) {
    for (std::string& line : lines_of_day) line = texts.Next();
  }
  SetChanges(false, true);
  ShowDay(*day);
  Redraw();
  return true;
}

void Calendar::DeleteMonth() {
  if (!Confirmed({kSaveTitle, "Delete " + TitleOf(loaded_) + " calendar entries and file?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return;
  }
  if (const auto deleted = DeleteMonthSheet(context_.folder, loaded_); !deleted) {
    Message({"Not Deleted",
             "The calendar of " + TitleOf(loaded_) + " could not be deleted: " +
                 std::string(forms::ReasonOf(deleted.fault())) + ".\nIt stays as it is.",
             forms::Icon::kCritical});
    return;
  }
  LoadMonth(loaded_);
}

void Calendar::ChooseFont() {
  const auto chosen = context_.dialogs.ChooseFont(sheet_.font);
  if (!chosen) return;
  const forms::Font next = forms::WithParts(sheet_.font, *chosen);
  if (next == sheet_.font) return;
  sheet_.font = next;
  SetChanges(is_typed_, true);
  Redraw();
}

void Calendar::ChooseSetup() {
  const auto setup = context_.pages.ChooseSetup(setup_);
  if (!setup) return;
  setup_ = *setup;
  Redraw();
}

void Calendar::Copy() {
  context_.pages.CopyPage(sheet_page_.document(), 0);
  Message({"Copy Option", "Current Calendar has been copied to the Windows Clipboard.",
           forms::Icon::kInformation});
}

void Calendar::ToggleZoom() {
  const bool enlarge = preview.zoom() != forms::Zoom::kEnlarged;
  preview.SetZoom(enlarge ? forms::Zoom::kEnlarged : forms::Zoom::kNormal);
  zoom.SetCaption(enlarge ? "Normal" : "Enlarge");
}

void Calendar::ChooseGuideLines(int option) {
  preview.SetGuideLines(option == 1);
  const auto stored =
      settings::WriteGuideLines(context_.folder, settings::GuideLines::kCalendarSheet, option);
  if (!stored) forms::TellHoldsForNow(context_, "The choice of guide lines", stored.fault());
}

void Calendar::StoreSortTime(int option) {
  const auto stored =
      settings::WriteSortTime(context_.folder, option, settings::SortTime::kCalendarSheet);
  if (!stored) forms::TellHoldsForNow(context_, "The Sort Time choice", stored.fault());
}

bool Calendar::QueryUnload(forms::UnloadCause cause) {
  return question_.Settle(kLeaving) &&
         colors.Leave(cause == forms::UnloadCause::kCommand ? forms::Buttons::kYesNoCancel
                                                            : forms::Buttons::kYesNo);
}

}  // namespace tarnwell::planner
