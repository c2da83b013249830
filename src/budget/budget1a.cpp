#include "budget/budget1a.h"

#include <algorithm>
#include <utility>

#include "budget/budget_report.h"
#include "budget/budget_year.h"
#include "forms/form_names.h"
#include "parts/backup_menu.h"
#include "parts/sheet_rows.h"
#include "storage/file_names.h"
#include "text/date_names.h"
#include "text/letters.h"

namespace tarnwell::budget {
namespace {

constexpr int kBudgetHelp = 3050;
constexpr const char* kTooMuch = "Maximum Allowed Entry Exceeded";
constexpr const char* kNoTotals = "View Totals";

constexpr year_sheet::Years kYears{
    .first = 1990, .last = 2089, .first_typed = 1990, .last_of_2000 = 89};
constexpr year_sheet::AmountStyle kAmounts{.mask = kCellMask,
                                           .limit = 10000,
                                           .most = "9999.99",
                                           .too_large = "Cell entries are limited to 9,999.99!"};
const year_sheet::YearSheetStyle kBudget{
    .form_name = forms::form_names::kBudget1a,
    .caption = "Company Budget",
    .grid_name = "Budget",
    .name_title = "Item",
    .box_title = "Company Budget",
    .kind = "budget",
    .copied = "Budget",
    .years = kYears,
    .amounts = kAmounts,
    .copy_year_caption = "Copy (&Yr)",
    .insert_entry = "mOIN",
    .print_entry = "&Print Options",
    .copy_entry = "Copy Budget to &Windows Clipboard",
    .export_stem = "Budget",
    .supply_extension = true,
    .panel_color = settings::PanelColor::kBudget,
    .field_color = settings::FieldColor::kBudget,
    .background = settings::GridBackground::kBudget,
    .print = {.grid_lines_caption = "Print Grid Lines on each page"},
    .help = kBudgetHelp,
    .backup_set = parts::kBudgetSet};

}  // namespace

Budget1a::Budget1a(forms::Context& context) : YearSheet(context, kBudget) {
  for (std::size_t month = 0; month < kMonths; ++month) {
    income[month].on_click = [this, month] { EnterIncome(month); };
    income[month].SetToolTip("Enter the Total Income of " + std::string(text::kMonthNames[month]));
  }
  preparing.SetVisible(false);
  preparing.Cover({&sheet, &year_totals.panel, &print.panel});
  cancel_print.on_click = [this] { is_cancelled_ = true; };
  print_graph.SetChecked(true);
  print_graph.on_change = [this] { print.Rebuild(); };
  ConnectTotals();
}

void Budget1a::ConnectTotals() {
  forms::Panel& panel = year_totals.panel;
  panel.Cover({&sheet});
  for (forms::Panel* above : {&print.panel, &exporting.panel, &background.panel}) {
    above->Cover({&sheet, &panel});
  }
  year_totals.on_close = [this] { grid.Focus(); };
  background.on_apply = [this, usual = background.on_apply](const forms::GridLook& look) {
    usual(look);
    year_totals.items.SetLook(look);
  };
  colors.on_change = [this, &panel, usual = colors.on_change] {
    usual();
    panel.SetBackground(colors.panel());
  };
  forms::MenuItem& options = *menus().Find("mO");
  options.LiveWith({&sheet, &panel});
  options.Find("mOPrt")->SetAction({[this] { OpenPrint(); }, {&print_options, &panel}});
}

std::vector<forms::Control*> Budget1a::Editors() {
  std::vector<forms::Control*> editors = YearSheet::Editors();
  for (std::size_t month = 0; month < kMonths; ++month) editors.push_back(&income[month]);
  return editors;
}

std::string Budget1a::FileOf(int year) const { return storage::file_names::BudgetYear(year); }

storage::Fault Budget1a::ReadYear(int year) {
  BudgetYear read = ReadBudgetYear(context_.folder, year);
  Fill(read.rows);
  months_.income = std::move(read.income);
  rest_ = std::move(read.rest);
  return read.fault;
}

storage::Outcome Budget1a::WriteYear(int year) {
  return WriteBudgetYear(context_.folder, year,
                         {.rows = ShownRows(), .income = months_.income, .rest = rest_});
}

std::vector<std::string> Budget1a::TextsBeside() const {
  return {months_.income.begin(), months_.income.end()};
}

void Budget1a::PutTextsBeside(std::vector<std::string> texts) {
  std::ranges::move(texts, months_.income.begin());
}

void Budget1a::Recompute(int) {
  months_ = ComputeMonths(ShownRows(), months_.income);
  for (std::size_t month = 0; month < kMonths; ++month) {
    expenses[month].SetCaption(months_.expenses[month]);
    income[month].SetCaption(months_.income[month]);
    balance[month].SetCaption(months_.balance[month]);
    balance[month].SetColor(months_.overdrawn[month] ? kOverdrawn : forms::kBlack);
  }
  for (const bool is_too_large : months_.too_large) {
    if (!is_too_large) continue;
    Message({kTooMuch,
             "Due to printer size requirements needed to print this budget, the Total of Bills "
             "Amount Cannot exceed 99999",
             forms::Icon::kExclamation});
  }
}

void Budget1a::EnterIncome(std::size_t month) {
  if (!EndEdit()) return;
  const auto typed = context_.dialogs.Input(
      {"Total Income", "Enter Total Amount of Income That you will be receiving this month."});
  if (!typed || text::Trim(*typed).empty()) return;
  const TypedIncome amount = IncomeOf(*typed);
  if (amount.was_too_large) {
    Message({kTooMuch,
             "Due to printer size requirements needed to print this budget, the Total Income "
             "Amount Cannot exceed 99999.99",
             forms::Icon::kExclamation});
  }
  months_.income[month] = amount.text;
  income[month].SetCaption(amount.text);
  if (month + 1 < kMonths &&
      Confirmed({"Total Income Row",
                 "Do you want to copy this month's entry of Total Income to the Right?",
                 forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    std::fill(months_.income.begin() + static_cast<std::ptrdiff_t>(month), months_.income.end(),
              amount.text);
  }
  MarkChanged();
  Recompute(0);
}

// The row that drops out isn't lost unasked.
void Budget1a::InsertRow(int row) {
  if (!parts::IsSheetRowBlank(grid, kItems) &&
      !Confirmed({"Insert New Row",
                  "The last row, \"" + text::Trim(grid.text(kItems, kName)) +
                      "\", would drop out of the budget. Insert a row?",
                  forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return;
  }
  {
    const forms::Grid::Batch batch(grid);
    parts::DeleteSheetRow(grid, kItems);
    parts::InsertSheetRow(grid, row);
  }
  MarkChanged();
  Recompute(0);
}

void Budget1a::RemoveRow(int row) { parts::DeleteSheetRow(grid, row); }

void Budget1a::ShowTotals() {
  const year_sheet::Rows rows = ShownRows();
  if (!HasEntries(rows, months_.income)) {
    Message({kNoTotals,
             "There must be at least one entry and at least one income entry to view Totals!",
             forms::Icon::kExclamation});
    return;
  }
  YearTotals computed = ComputeYear(rows, months_);
  if (!computed.has_income()) {
    Message({"Totals Button", "Please enter at least the first row of data and the Total Income!",
             forms::Icon::kExclamation});
    return;
  }
  year_totals.Open(shown_year(), std::move(computed));
}

PrintedYear Budget1a::Shown() const { return {shown_year(), ShownRows(), months_}; }

print::PrintJob Budget1a::Report() {
  print_graph.SetVisible(year_totals.is_open());
  print::PrintJob job = year_totals.is_open() ? TotalsReport() : YearReport();
  job.printed_line = false;
  // Later builds, after a change of font or paper, leave a person where they are.
  job.build = [this, is_first = true,
               build = std::move(job.build)](print::PageEngine& engine) mutable {
    if (!std::exchange(is_first, false)) return build(engine);
    Prepare([&] { build(engine); });
  };
  return job;
}

// A person may break it off before the pages are made, or have the panel closed behind them.
void Budget1a::Prepare(const std::function<void()>& build) {
  is_cancelled_ = false;
  preparing.SetVisible(true);
  {
    const BusyScope busy(*this, {&preparing});
    context_.loop.Yield();
    if (!is_cancelled_) build();
    context_.loop.Yield();
  }
  preparing.SetVisible(false);
  if (is_cancelled_) print.Close();
}

print::PrintJob Budget1a::YearReport() {
  print::PrintJob job;
  job.title = "Budget For " + std::to_string(shown_year());
  job.page_head = [this](print::PageEngine& engine) {
    BudgetHead(engine, context_.variables, shown_year(), context_.clock.Today());
  };
  job.build = [this, shown = Shown()](print::PageEngine& engine) {
    BudgetRows(engine, context_.variables, shown);
  };
  return job;
}

print::PrintJob Budget1a::TotalsReport() {
  print::PrintJob job;
  job.title = "Company Budget TOTALS FOR " + std::to_string(shown_year());
  job.page_head = [this](print::PageEngine& engine) {
    TotalsHead(engine, shown_year(), context_.clock.Today());
  };
  job.build = [this](print::PageEngine& engine) {
    PrintedTotals printed{shown_year(), year_totals.totals(), year_totals.base(), nullptr};
    if (print_graph.checked() && printed.totals.has_figures()) {
      printed.chart = std::make_shared<forms::ChartPicture>(year_totals.chart.picture());
    }
    TotalsRows(engine, context_.variables, printed);
  };
  return job;
}

std::string Budget1a::ClipboardText() { return BudgetText(Shown(), context_.variables); }

}  // namespace tarnwell::budget
