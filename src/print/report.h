// The lines that reports have in common.

#pragma once

#include <string>
#include <string_view>

#include "forms/program_variables.h"
#include "print/page_engine.h"
#include "text/date.h"

namespace tarnwell::print {

// Behind the company's name and a blank, where there is one.
std::string CompanyTitle(const forms::ProgramVariables& variables, std::string_view title);

// The other way round, as captions of windows and some heads have it.
std::string WithCompany(const forms::ProgramVariables& variables, std::string_view text);

inline constexpr int kHeadHeight = 250;  // twips, of the line at the head of a page

// "Printed:  " and the date at the right edge of the page, `top` twips below its upper edge, in
// black; the position is then 250 twips below that.
void PrintedLine(PageEngine& engine, text::Date today, int top);

// "As of  " and the date, in the order of `variables`.
std::string AsOf(const forms::ProgramVariables& variables, text::Date today);

// That text in the middle of the page's head, two points smaller, unless NoAsOfDate; the position
// is then below it.
void AsOfLine(PageEngine& engine, const forms::ProgramVariables& variables, text::Date today);

// One line in the middle of the column, `larger` points above the font.
void TitleLine(PageEngine& engine, std::string_view title, double larger);

}  // namespace tarnwell::print
