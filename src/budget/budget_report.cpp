#include "budget/budget_report.h"

#include <algorithm>
#include <span>
#include <utility>

#include "print/report.h"
#include "print/table.h"
#include "text/date_mask.h"
#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::budget {
namespace {

constexpr const char* kTitles[] = {"Item", "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul",  "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr const char* kWidestAmount = "-99999.99";
constexpr double kMonthsShare = 0.8;  // of the page's width, at most
constexpr double kLeastSize = 5;      // points
constexpr double kLargerTitle = 2;    // likewise
constexpr int kAboveTable = 120;      // twips
constexpr double kTotalsShares[] = {0.6, 0.2, 0.2};

// Where the chart stands on a page.
const forms::PlacedChart kAcross{446, 1008, 14256, 6336, nullptr};
const forms::PlacedChart kUpright{518, 1210, 10512, 5976, nullptr};

void Head(print::PageEngine& engine, const std::string& title, text::Date printed) {
  print::TitleLine(engine, title, kLargerTitle);
  engine.Line("Printed: " + text::FormatDate(printed, "Long Date"), print::Align::kCenter);
  engine.Skip(kAboveTable);
}

// The totals are bold.
int MonthWidth(print::PageEngine& engine) {
  forms::Font bold = engine.font();
  bold.bold = true;
  return engine.metrics().Width(bold, kWidestAmount) + 2 * print::Table::kPadding;
}

// What stands in a cell that is no number stays as it is.
std::string Amount(const std::string& cell) {
  const double amount = text::LeadingNumber(cell);
  return amount == 0 ? cell : text::FormatNumber(amount, kIncomeMask);
}

std::vector<print::Cell> TotalsRow(const char* title, const MonthTexts& months,
                                   const std::array<bool, kMonths>& red) {
  std::vector<print::Cell> cells{title};
  for (std::size_t i = 0; i < kMonths; ++i) {
    cells.emplace_back(months[i]);
    if (red[i]) cells.back().color = kOverdrawn;
  }
  for (print::Cell& cell : cells) cell.bold = true;
  return cells;
}

print::TableLines Lines(const forms::ProgramVariables& variables) {
  return variables.GridLinesOnPrint == 1 ? print::TableLines::kAll : print::TableLines::kNone;
}

}  // namespace

void BudgetHead(print::PageEngine& engine, const forms::ProgramVariables& variables, int year,
                text::Date printed) {
  Head(engine,
       variables.CompanyLine + " Budget For " + std::to_string(year) +
           (engine.page_count() > 1 ? " (Continued)" : ""),
       printed);
}

void BudgetRows(print::PageEngine& engine, const forms::ProgramVariables& variables,
                const PrintedYear& printed) {
  const forms::Font usual = engine.font();
  forms::Font font = usual;
  const int most = static_cast<int>(engine.ColumnWidth() * kMonthsShare);
  while (static_cast<int>(kMonths) * MonthWidth(engine) > most && font.size > kLeastSize) {
    font.size -= 0.5;
    engine.SetFont(font);
  }
  const int month = std::min(MonthWidth(engine), most / static_cast<int>(kMonths));
  std::vector<print::TableColumn> columns{
      {kTitles[0], engine.ColumnWidth() - month * static_cast<int>(kMonths)}};
  for (const char* title : std::span(kTitles).subspan(1)) {
    columns.push_back({title, month, print::Align::kRight});
  }
  print::Table table(engine, std::move(columns), Lines(variables));
  for (const year_sheet::Row& row : printed.rows) {
    if (year_sheet::IsBlank(row)) continue;
    std::vector<print::Cell> cells{row[0]};
    for (std::size_t i = 1; i <= kMonths; ++i) cells.emplace_back(Amount(row[i]));
    table.Row(cells);
  }
  table.Row(TotalsRow("Total Expenses: ", printed.months.expenses, {}), kAboveTable);
  table.Row(TotalsRow("Total Income: ", printed.months.income, {}));
  table.Row(TotalsRow("Balance: ", printed.months.balance, printed.months.overdrawn));
  engine.SetFont(usual);
}

void TotalsHead(print::PageEngine& engine, int year, text::Date printed) {
  Head(engine, "Company Budget TOTALS FOR " + std::to_string(year), printed);
}

void TotalsRows(print::PageEngine& engine, const forms::ProgramVariables& variables,
                const PrintedTotals& printed) {
  if (printed.chart) {
    forms::PlacedChart place = engine.page_width() > engine.page_height() ? kAcross : kUpright;
    place.y = std::max(place.y, engine.y() - kAboveTable);
    place.width = std::min(place.width, engine.page_width() - 2 * place.x);
    place.picture = printed.chart;
    engine.Add(place);
    engine.MoveTo(place.y + place.height + kAboveTable);
  }
  const std::vector<int> widths =
      print::Shares(engine.ColumnWidth(), {kTotalsShares[0], kTotalsShares[1], kTotalsShares[2]});
  print::Table table(engine,
                     {{"Item", widths[0]},
                      {"Total", widths[1], print::Align::kRight},
                      {"Percentage", widths[2], print::Align::kRight}},
                     Lines(variables));
  const YearTotals& year = printed.totals;
  for (const ItemTotal& item : year.items) {
    table.Row({item.item, item.total, text::Trim(PercentOf(item, year, printed.base))});
  }
  const auto total = [&](const char* title, const std::string& amount, const std::string& share,
                         int gap, bool red) {
    std::vector<print::Cell> cells{title, text::Trim(amount), text::Trim(share)};
    for (print::Cell& cell : cells) {
      cell.bold = true;
      if (red) cell.color = kOverdrawn;
    }
    table.Row(cells, gap);
  };
  total("Total Expenses: ", year.expenses, year.expenses_share, kAboveTable, false);
  total("Total Income: ", year.income, year.income_share, 0, false);
  total("Balance: ", year.balance, year.balance_share, 0, year.overdrawn);
}

std::string BudgetText(const PrintedYear& copied, const forms::ProgramVariables& variables) {
  std::string text = variables.CompanyLine + " Budget" + std::to_string(copied.year) + "\r\n";
  const auto add = [&](std::string_view title, const auto& months) {
    text += title;
    for (const auto& month : months) text.append("\t").append(month);
    text += "\r\n";
  };
  add(kTitles[0], std::span(kTitles).subspan(1));
  for (const year_sheet::Row& row : copied.rows) {
    if (!text::Trim(row[0]).empty()) add(row[0], std::span(row).subspan(1));
  }
  add("Total Expenses:", copied.months.expenses);
  add("Total Income:      ", copied.months.income);
  add("Balance:          ", copied.months.balance);
  return text;
}

}  // namespace tarnwell::budget
