// A year's budget and its totals on paper, and as text for the clipboard.

#pragma once

#include <memory>
#include <string>

#include "budget/year_totals.h"
#include "forms/program_variables.h"
#include "print/page_engine.h"
#include "text/date.h"

namespace tarnwell::budget {

// What is printed of a year.
struct PrintedYear {
  int year = 0;
  year_sheet::Rows rows;
  MonthTotals months;
};
// At the head of each page: " Budget For 2026", with " (Continued)" from the second page on, and
// when it was printed.
void BudgetHead(print::PageEngine& engine, const forms::ProgramVariables& variables, int year,
                text::Date printed);
// The rows that hold anything, and the three rows of totals. The letters get smaller where the
// months wouldn't stand beside each other.
void BudgetRows(print::PageEngine& engine, const forms::ProgramVariables& variables,
                const PrintedYear& printed);

struct PrintedTotals {
  int year = 0;
  YearTotals totals;
  PercentBase base = PercentBase::kIncome;
  std::shared_ptr<const forms::ChartPicture> chart;  // null: without
};
void TotalsHead(print::PageEngine& engine, int year, text::Date printed);
// The chart, then each item, and the year's own totals.
void TotalsRows(print::PageEngine& engine, const forms::ProgramVariables& variables,
                const PrintedTotals& printed);

// Lines of cells with tabs between them and CR LF behind each: a title, the columns' titles, the
// rows with an item, and the three rows of totals.
std::string BudgetText(const PrintedYear& copied, const forms::ProgramVariables& variables);

}  // namespace tarnwell::budget
