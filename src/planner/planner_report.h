// The planner's pages and clipboard texts.

#pragma once

#include <string>
#include <vector>

#include "forms/program_variables.h"
#include "planner/day_rows.h"
#include "planner/month_view.h"
#include "print/page_engine.h"
#include "text/date.h"

namespace tarnwell::planner {

struct PageLayout {
  bool two_columns = false;
  bool lines = false;  // around the cells
};

// A day's rows that aren't blank below the day's title. Two rows go side by side in two columns.
void PrintDay(print::PageEngine& engine, const forms::ProgramVariables& variables, text::Date date,
              const DayRows& rows, const PageLayout& layout);

// The head of each page of a month: "As of" and the page's number, then the month's title.
void PrintMonthHead(print::PageEngine& engine, const forms::ProgramVariables& variables,
                    text::Date today, text::Date month);
// The list. In two columns it runs down the left one first, and entries are cut to 25 characters.
void PrintMonth(print::PageEngine& engine, const std::vector<MonthRow>& rows,
                const PageLayout& layout);

// Texts for the clipboard, lines ended by CR LF.
std::string DayText(text::Date date, const DayRows& rows);
std::string MonthText(const std::string& title, const std::vector<MonthRow>& rows);

}  // namespace tarnwell::planner
