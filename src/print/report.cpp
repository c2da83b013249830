#include "print/report.h"

#include <algorithm>

#include "text/date_mask.h"

namespace tarnwell::print {
namespace {

constexpr int kFromRightEdge = 300;  // twips

}  // namespace

std::string CompanyTitle(const forms::ProgramVariables& variables, std::string_view title) {
  if (variables.CompanyLine.empty()) return std::string(title);
  return variables.CompanyLine + " " + std::string(title);
}

std::string WithCompany(const forms::ProgramVariables& variables, std::string_view text) {
  const std::string& company = variables.CompanyLine;
  return std::string(text) + (company.empty() ? "" : " " + company);
}

void PrintedLine(PageEngine& engine, text::Date today, int top) {
  const forms::Font font = engine.font();
  forms::Font black = font;
  black.color = forms::kBlack;
  engine.SetFont(black);
  engine.TextAt(engine.page_width() - kFromRightEdge, top,
                "Printed:  " + text::FormatDate(today, "mmmm d, yyyy"), Align::kRight);
  engine.SetFont(font);
  engine.MoveTo(top + kHeadHeight);
}

std::string AsOf(const forms::ProgramVariables& variables, text::Date today) {
  return "As of  " +
         text::FormatDate(today, variables.day_first() ? "dd mmmm yyyy" : "mmmm dd, yyyy");
}

void AsOfLine(PageEngine& engine, const forms::ProgramVariables& variables, text::Date today) {
  if (variables.NoAsOfDate == 1) return;
  const forms::Font font = engine.font();
  forms::Font smaller = font;
  smaller.size = std::max(font.size - 2, 1.0);
  engine.SetFont(smaller);
  engine.TextAt(engine.page_width() / 2, engine.y(), AsOf(variables, today), Align::kCenter);
  engine.Skip(std::max(kHeadHeight, engine.LineHeight()));
  engine.SetFont(font);
}

void TitleLine(PageEngine& engine, std::string_view title, double larger) {
  const forms::Font font = engine.font();
  forms::Font title_font = font;
  title_font.size += larger;
  engine.SetFont(title_font);
  engine.Line(title, Align::kCenter);
  engine.SetFont(font);
}

}  // namespace tarnwell::print
