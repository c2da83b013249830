#include "year_sheet/year_sheet.h"

#include <algorithm>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "parts/sheet_rows.h"
#include "proofing/grid_corrections.h"
#include "proofing/spelling.h"
#include "storage/file_names.h"
#include "text/letters.h"
#include "year_sheet/year_copy.h"

namespace tarnwell::year_sheet {
namespace {

constexpr std::size_t kLongestSpelledName = 30;  // characters that a check of spelling leaves
constexpr parts::ExportStyle kExport{
    .first_line =
        "A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program "
        "folder:  ",
    .extra_line =
        "File will NOT include Total Expenses, Balance etc. in that formulas cannot be "
        "exported correctly!  You will have to add them in Excel, if desired.",
    .name_field = "Text3"};

parts::ExportStyle ExportStyleOf(const YearSheetStyle& style) {
  parts::ExportStyle exporting = kExport;
  exporting.supply_extension = style.supply_extension;
  return exporting;
}

}  // namespace

YearSheet::YearSheet(forms::Context& context, const YearSheetStyle& style)
    : Form(context, style.form_name, style.caption),
      grid(sheet, "VSGd1", style.grid_name),
      copy_year(sheet, "Command7", style.copy_year_caption),
      print(*this, context, style.print),
      exporting(*this, context, ExportStyleOf(style)),
      background(*this, context, style.background),
      colors(context, style.panel_color, style.field_color),
      style_(style),
      question_(context, [this] { return Save(); }) {
  ConnectCommands();
  ConnectGrid();
  BuildMenus();
  SetHelpContext(style.help);
  for (forms::Panel* panel : {&print.panel, &exporting.panel, &background.panel}) {
    panel->Cover({&sheet});
  }
}

void YearSheet::ConnectCommands() {
  question_.on_change = [this] { SetUnsaved(question_.unsaved()); };
  years.on_open = [this] { return SettleYear(); };
  years.on_take = [this] { TakeYear(); };
  box.on_focus = [this] {
    grid.EndEdit();
    box.SetMarked(true);
    ShowCell();
  };
  box.on_leave = [this] { box.SetMarked(false); };
  box.on_change = [this] { TypedInBox(); };
  box.on_enter = [this] { grid.Focus(); };
  const auto ended = [this](void (YearSheet::*command)()) {
    return [this, command] {
      if (EndEdit()) (this->*command)();
    };
  };
  save.on_click = [this] { Save(); };
  copy_right.on_click = ended(&YearSheet::CopyRight);
  delete_row.on_click = [this] { RemovePicked(); };
  copy_year.on_click = ended(&YearSheet::CopyYear);
  totals.on_click = ended(&YearSheet::ShowTotals);
  spelling.on_click = ended(&YearSheet::CheckSpelling);
  print_options.on_click = ended(&YearSheet::OpenPrint);
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  print.on_close = exporting.on_close = background.on_close = [this] {
    if (grid.Reachable()) grid.Focus();
  };
  background.on_apply = [this](const forms::GridLook& look) { grid.SetLook(look); };
  colors.on_change = [this] {
    for (forms::Panel* panel : {&sheet, &print.panel, &exporting.panel, &background.panel}) {
      panel->SetBackground(colors.panel());
    }
  };
}

void YearSheet::BuildMenus() {
  const std::vector<forms::Control*> with_grid{&grid};
  const auto copy = [this] { Copy(); };
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  options.AddCommand("mOS", "&Save", save).SetKey("Ctrl+S");
  options.AddCommand("mODel", "&Delete Row", delete_row);
  options.AddEntry(style_.insert_entry, "&Insert New Row", {[this] { Insert(); }, with_grid});
  options.AddCommand("mOT", "&Totals For Year", totals);
  options.AddCommand("mOSpell", "Spelling Chec&k", spelling).SetKey("F7");
  options.AddCommand("mOPrt", style_.print_entry, print_options).SetKey("Ctrl+P");
  options.AddEntry("mOCopy", style_.copy_entry, {copy, with_grid});
  options.AddSeparator();
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddEntry("mOGB", "&Grid Background", {[this] { background.Open(); }, with_grid});
  options.AddSeparator();
  options.AddCommand("mOE", "E&xit", exit);
  forms::MenuItem& edit = menus().AddSubmenu("mE", "&Edit");
  edit.AddCommand("mECR", "&Copy Right", copy_right);
  edit.AddCommand("mED", "&Delete Row", delete_row);
  edit.AddEntry("mECopy", "Copy Budget to &Windows Clipboard", {copy, with_grid});
  edit.AddEntry("mECY", "Copy To Next &Year", {[this] { CopyWholeYear(); }, {&copy_year}});
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  const parts::BackupEntries entries = parts::AddBackupEntries(
      utilities, context_,
      {.set = style_.backup_set,
       .backup = "&Backup Selected Year File to Disk",
       .restore = "&Restore Selected Year File from Disk",
       .settle = [this] { return SettleYear() && colors.Leave(forms::Buttons::kYesNoCancel); },
       .year = [this] { return shown_year_; },
       .reload = [this] { ReadAnew(); }});
  forms::MenuItem& exported =
      utilities.AddEntry("mUExcel", "Export File in Excel/Spreadsheet Format",
                         {[this] {
                            if (!EndEdit()) return;
                            exporting.Open(grid, std::string(style_.export_stem) +
                                                     std::to_string(shown_year_) + ".xls");
                          },
                          with_grid});
  utilities.on_open = [this, &exported, &backup = entries.backup] {
    exported.SetEnabled(HasNames());
    backup.SetEnabled(context_.folder.Length(FileOf(shown_year_)) > 0);
  };
  for (forms::MenuItem* menu : {&options, &edit, &utilities}) menu->LiveWith({&sheet});
  SetPopupMenu(options);
  parts::AddHelpMenu(*this, context_);
}

void YearSheet::Load() {
  BuildGrid();
  colors.Load();
  background.Load();
  years.SetItems(Listed(style_.years));
  ShowYear(OpeningYear(context_.clock.Today(), style_.years));
  grid.Focus();
}

bool YearSheet::QueryUnload(forms::UnloadCause cause) {
  const auto buttons =
      cause == forms::UnloadCause::kCommand ? forms::Buttons::kYesNoCancel : forms::Buttons::kYesNo;
  return EndEdit() && Settle() && colors.Leave(buttons);
}

bool YearSheet::Settle() {
  const std::string text = "Save changes made to " + std::to_string(shown_year_) + " " +
                           std::string(style_.kind) + " before Exiting?";
  return question_.Settle({style_.box_title, text, forms::Buttons::kYesNoCancel});
}

// What a person doesn't want to keep goes at once, so that no unsaved sheet stays on show that is
// asked about no more.
bool YearSheet::SettleYear() {
  if (!EndEdit() || !Settle()) return false;
  if (question_.unsaved()) ShowYear(shown_year_);
  return true;
}

// The settings and the year, as the files hold them now.
void YearSheet::ReadAnew() {
  colors.Load();
  background.Load();
  ShowYear(shown_year_);
  print_options.Focus();
}

void YearSheet::TakeYear() {
  const int wanted =
      text::Trim(years.text()).empty() ? shown_year_ : TypedYear(years.text(), style_.years);
  if (wanted == shown_year_ || !SettleYear()) return years.SetText(std::to_string(shown_year_));
  ShowYear(wanted);
}

void YearSheet::ShowYear(int wanted) {
  const forms::Hourglass hourglass(context_.window);
  shown_year_ = wanted;
  years.SetText(std::to_string(wanted));
  const storage::Fault fault = ReadYear(wanted);
  is_readable_ = fault == storage::Fault::kNone || fault == storage::Fault::kMissing;
  for (forms::Control* control : Editors()) control->SetEnabled(is_readable_);
  SetStatus(is_readable_ ? ""
                         : "The year " + std::to_string(wanted) +
                               " can't be read: " + std::string(forms::ReasonOf(fault)) + ".");
  Recompute(0);
  question_.SetUnsaved(false);
  GoToStart();
}

std::vector<forms::Control*> YearSheet::Editors() {
  return {&grid,      &box,    &save,     &copy_right,   &delete_row,
          &copy_year, &totals, &spelling, &print_options};
}

parts::SaveResult YearSheet::Save() {
  if (!EndEdit()) return parts::SaveResult::kFailed;
  const forms::Hourglass hourglass(context_.window);
  const std::string what = "The " + std::to_string(shown_year_) + " " + std::string(style_.kind);
  if (const auto written = WriteYear(shown_year_); !written) {
    forms::TellNotSaved(context_, what, written.fault());
    return parts::SaveResult::kFailed;
  }
  ForgetReplaced(context_.folder, FileOf(shown_year_));
  question_.SetUnsaved(false);
  if (colors.changed()) colors.Save();
  SetStatus(what + " has been saved.");
  return parts::SaveResult::kSaved;
}

std::optional<forms::Draft> YearSheet::TakeDraft() {
  const Rows rows = ShownRows();
  const std::vector<std::string> beside = TextsBeside();
  forms::Draft draft{
      std::string(style_.box_title) + " " + std::to_string(shown_year_), {FileOf(shown_year_)}, {}};
  draft.Add(shown_year_);
  draft.Add(static_cast<int>(beside.size()));
  for (const std::string& text : beside) draft.Add(text);
  for (const Row& row : rows) draft.texts.insert(draft.texts.end(), row.begin(), row.end());
  return draft;
}

bool YearSheet::PutDraft(forms::DraftTexts texts) {
  const int year = texts.NextNumber();
  if (TypedYear(std::to_string(year), style_.years) != year) return false;
  ShowYear(year);
  if (!is_readable_) return false;
  std::vector<std::string> beside(TextsBeside().size());
  if (texts.NextNumber() != static_cast<int>(beside.size())) return false;
  for (std::string& text : beside) text = texts.Next();
  PutTextsBeside(std::move(beside));
  const auto cells = static_cast<std::size_t>(grid.columns() - kName);
  Rows rows(texts.left() / cells, Row(cells));
  for (Row& row : rows) {
    for (std::string& cell : row) cell = texts.Next();
  }
  Fill(rows);
  Recompute(0);
  MarkChanged();
  GoToStart();
  return true;
}

bool YearSheet::AskToCopyYear(std::string_view words) {
  const std::string from = std::to_string(shown_year_);
  return Confirmed({"Copy Year",
                    "Copy " + from + " file" + std::string(words) + " to " +
                        std::to_string(shown_year_ + 1) + "?",
                    forms::Icon::kQuestion, forms::Buttons::kYesNo, 2});
}

void YearSheet::CopyWholeYear() {
  if (!EndEdit() || !AskToCopyYear()) return;
  if (!context_.folder.Exists(FileOf(shown_year_))) {
    Message({"Copy Year",
             "The year " + std::to_string(shown_year_) +
                 " has not been saved yet, so there is "
                 "nothing to copy.",
             forms::Icon::kExclamation});
    return;
  }
  const forms::Hourglass hourglass(context_.window);
  const bool has_replaced = HasFileOfNextYear();
  TellCopied(CopyYearFile(context_.folder, FileOf(shown_year_), FileOf(shown_year_ + 1)),
             has_replaced);
}

void YearSheet::TellCopied(const storage::Outcome& copied, bool has_replaced) {
  const std::string next = std::to_string(shown_year_ + 1);
  if (!copied) {
    return forms::TellRefused(context_, "The copy to " + next, copied.fault(),
                              "The year " + next + " stays as it was.");
  }
  std::string status = std::to_string(shown_year_) + " has been copied to " + next + ".";
  if (has_replaced) {
    status += " What " + next + " held is kept in " +
              storage::file_names::Replaced(FileOf(shown_year_ + 1)) + " until " + next +
              " is saved.";
  }
  SetStatus(status);
}

void YearSheet::CheckSpelling() {
  const std::size_t corrected =
      proofing::CheckSpellingOfColumn(context_, grid, kName, kLongestSpelledName);
  if (corrected > 0) MarkChanged();
  proofing::ReportCheckedEntries(context_, "Spelling Check", corrected > 0);
  SetStatus(proofing::CorrectedNote(corrected));
  grid.Focus();
}

void YearSheet::OpenPrint() {
  bool has_entries = false;
  for (int row = 1; row < grid.rows() && !has_entries; ++row) {
    has_entries = !parts::IsSheetRowBlank(grid, row);
  }
  if (!has_entries) return print::ReportNothingToPrint(context_);
  print::PrintJob job = Report();
  job.as_of_line = true;
  job.guide_lines = settings::GuideLines::kYearSheets;
  job.font = settings::PrinterFont::kYearSheets;
  print.Open(std::move(job));
}

void YearSheet::Copy() {
  if (!EndEdit()) return;
  context_.clipboard.SetText(ClipboardText());
  Message({"Copy Option",
           "Current " + std::string(style_.copied) + " has been copied to the Windows Clipboard.",
           forms::Icon::kInformation});
}

}  // namespace tarnwell::year_sheet
