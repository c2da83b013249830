#include "leave/leave_sheet.h"

#include <algorithm>
#include <array>

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "leave/leave_balance.h"
#include "leave/leave_report.h"
#include "parts/backup_menu.h"
#include "parts/sheet_rows.h"
#include "storage/file_names.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::leave {
namespace {

constexpr int kLeaveHelp = 3080;
constexpr year_sheet::Years kYears{
    .first = 2000, .last = 2089, .first_typed = 1990, .last_of_2000 = 99};
constexpr year_sheet::AmountStyle kDays{.mask = kDaysMask,
                                        .limit = 1000,
                                        .most = "999.99",
                                        .too_large = "Cell entries are limited to 999.99!"};

constexpr LeaveStyle kSickLeave{
    .form_name = forms::form_names::kSickLeave1,
    .title = "Employee Sick Leave Tracker",
    .files = {storage::file_names::SickLeave, storage::file_names::SickLeaveRows},
    .export_stem = "Sick Leave",
    .copied_heading = " Employee Sick Leave Tracker",
    .panel_color = settings::PanelColor::kSickLeave,
    .backup_set = parts::kSickLeaveSet};

constexpr LeaveStyle kVacation{
    .form_name = forms::form_names::kVacation1,
    .title = "Employee Vacation Tracker",
    .files = {storage::file_names::Vacation, storage::file_names::VacationRows},
    .export_stem = "Vacation",
    .copied_heading = " Employee Vacation Leave Tracker",
    .panel_color = settings::PanelColor::kVacation,
    .backup_set = parts::kVacationSet};

std::string CaptionOf(const forms::ProgramVariables& variables, std::string_view title) {
  const std::string caption = "Employee Data - " + std::string(title);
  return variables.CompanyLine.empty() ? caption : " " + caption + variables.CompanyLine;
}

year_sheet::YearSheetStyle SheetStyleOf(const forms::ProgramVariables& variables,
                                        const LeaveStyle& style) {
  return {.form_name = style.form_name,
          .caption = CaptionOf(variables, style.title),
          .grid_name = style.title,
          .name_title = kTitles[0],
          .box_title = style.title,
          .kind = style.title,
          .copied = style.title,
          .years = kYears,
          .amounts = kDays,
          .copy_year_caption = "Copy Employee Name/Auth to Next Year(&Yr)",
          .insert_entry = "mOIn",
          .export_stem = style.export_stem,
          .panel_color = style.panel_color,
          .background = settings::GridBackground::kLeave,
          .help = kLeaveHelp,
          .backup_set = style.backup_set};
}

}  // namespace

SICKLEAVE1::SICKLEAVE1(forms::Context& context) : LeaveSheet(context, kSickLeave) {}
Vacation1::Vacation1(forms::Context& context) : LeaveSheet(context, kVacation) {}

LeaveSheet::LeaveSheet(forms::Context& context, const LeaveStyle& style)
    : YearSheet(context, SheetStyleOf(context.variables, style)), style_(style) {
  forms::MenuItem& options = *menus().Find("mO");
  forms::MenuItem& remove = *options.Find("mODel");
  // Beside the button, which waits for a person to go to a row.
  remove.SetAction({[this] { RemovePicked(); }, {&grid}});
  options.on_open = [this, &remove] {
    const auto [row, column] = grid.current();
    remove.SetEnabled(!text::Trim(grid.text(row, column)).empty());
  };
  print.guide_lines.on_pick = [this, usual = print.guide_lines.on_pick](int option) {
    usual(option);
    print.Rebuild();  // the rules of the report come and go with them
  };
}

std::vector<forms::GridColumn> LeaveSheet::MoreColumns() const {
  constexpr std::size_t kBehindMonths = leave::kUsed - leave::kName;
  return {year_sheet::AmountColumn(kTitles[kBehindMonths], false),
          year_sheet::AmountColumn(kTitles[kBehindMonths + 1], true),
          year_sheet::AmountColumn(kTitles[kBehindMonths + 2], false)};
}

storage::Fault LeaveSheet::ReadYear(int year) {
  const LeaveYear read = ReadLeaveYear(context_.folder, style_.files, year);
  Fill(read.rows);
  return read.fault;
}

storage::Outcome LeaveSheet::WriteYear(int year) {
  return WriteLeaveYear(context_.folder, style_.files, year, ShownRows());
}

void LeaveSheet::Recompute(int row) {
  const forms::Grid::Batch batch(grid);
  if (row > 0) return ComputeRow(row);
  for (int i = 1; i < grid.rows(); ++i) ComputeRow(i);
}

void LeaveSheet::ComputeRow(int row) {
  std::array<std::string, 12> months;
  for (int i = 0; i < 12; ++i) months[static_cast<std::size_t>(i)] = grid.text(row, kJanuary + i);
  const LeaveBalance computed =
      ComputeBalance(grid.text(row, kName), months, grid.text(row, kAuthorized));
  if (computed.used) grid.SetText(row, kUsed, *computed.used);
  if (computed.balance) grid.SetText(row, kBalance, *computed.balance);
  const std::string& balance = grid.text(row, kBalance);
  if (balance.empty()) return;
  grid.SetStyle(
      row, kBalance,
      {.color = text::LeadingNumber(balance) < 0 ? kOverdrawn : forms::kBlack, .bold = true});
}

void LeaveSheet::InsertRow(int row) {
  if (grid.rows() - 1 >= kMostRows) {
    Message({"Insert New Row", "There is no room for another row in this sheet!",
             forms::Icon::kInformation});
    return;
  }
  {
    const forms::Grid::Batch batch(grid);
    grid.InsertRow(row);
    parts::SetSheetRows(grid, grid.rows() - 1);
  }
  MarkChanged();
  CountRows();
}

void LeaveSheet::RemoveRow(int row) {
  {
    const forms::Grid::Batch batch(grid);
    grid.RemoveRow(row);
    parts::SetSheetRows(grid, std::max(grid.rows() - 1, 1));
    grid.SetCurrent({1, kName});
  }
  CountRows();
}

// At once, while the sheet itself waits for Save.
void LeaveSheet::CountRows() {
  const auto counted = WriteRowCount(context_.folder, style_.files, shown_year(), grid.rows() - 1);
  if (!counted) forms::TellHoldsForNow(context_, "The number of rows", counted.fault());
}

// What is computed can't be gone to.
void LeaveSheet::CursorMoved() {
  const auto [row, column] = grid.current();
  if (column == kUsed || column == kBalance) grid.SetCurrent({row, kName});
}

void LeaveSheet::CopyYear() {
  if (!AskToCopyYear(" (Employee Names and Auth Only)")) return;
  const forms::Hourglass hourglass(context_.window);
  const bool has_replaced = HasFileOfNextYear();
  TellCopied(WriteNamesOfNextYear(context_.folder, style_.files, shown_year(), ShownRows()),
             has_replaced);
}

// The trackers share the budget's command, which finds no income in them.
void LeaveSheet::ShowTotals() {
  Message({"View Totals",
           "There must be at least one entry and at least one income entry to view Totals!",
           forms::Icon::kExclamation});
}

print::PrintJob LeaveSheet::Report() {
  const std::string title =
      " " + std::string(style_.title) + " For " + std::to_string(shown_year());
  print::PrintJob job;
  job.printed_line = false;
  job.title = text::Trim(title);
  job.page_head = [this, title](print::PageEngine& engine) {
    LeaveHead(engine, title, context_.clock.Today(), print.guide_lines.chosen() == 1);
  };
  job.build = [rows = ShownRows()](print::PageEngine& engine) { LeaveRows(engine, rows); };
  return job;
}

std::string LeaveSheet::ClipboardText() {
  return LeaveText(ShownRows(), std::to_string(shown_year()) + std::string(style_.copied_heading),
                   context_.pages.metrics());
}

}  // namespace tarnwell::leave
