#include "planner/planner_report.h"

#include <algorithm>
#include <string_view>

#include "planner/day_copy.h"
#include "print/report.h"
#include "print/table.h"
#include "text/date_mask.h"
#include "text/date_names.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::planner {
namespace {

using print::Cell;
using print::Table;
using print::TableColumn;

constexpr double kLargerTitle = 2;    // points
constexpr int kAboveTable = 120;      // twips
constexpr int kAboveNewDay = 10;      // twips
constexpr int kBetweenColumns = 240;  // twips
constexpr const char* kNarrowEntry = "!@@@@@@@@@@@@@@@@@@@@@@@@@";

constexpr const char* kTime = "Time";
constexpr const char* kEntry = "Appointment/Activity";
constexpr std::string_view kDayHeading = " Time                            Appointment/Activity";
constexpr std::string_view kMonthHeading = "Time                        Appointment/Activity";
constexpr std::size_t kDayLabelWidth = 8;  // characters of a clipboard's line
constexpr const char* kLineEnd = "\r\n";

print::TableLines LinesOf(const PageLayout& layout) {
  return layout.lines ? print::TableLines::kAll : print::TableLines::kNone;
}

std::string DayTitle(text::Date date) {
  return "Appointments/Activities For " + text::FormatDate(date, "Long Date");
}

std::string PadTo(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

}  // namespace

void PrintDay(print::PageEngine& engine, const forms::ProgramVariables& variables, text::Date date,
              const DayRows& rows, const PageLayout& layout) {
  print::TitleLine(engine, print::CompanyTitle(variables, DayTitle(date)), kLargerTitle);
  engine.Skip(kAboveTable);
  const int width = engine.ColumnWidth();
  std::vector<TableColumn> columns;
  if (layout.two_columns) {
    const auto widths = print::Shares(width, {0.12, 0.38, 0.12, 0.38});
    columns = {{kTime, widths[0]}, {kEntry, widths[1]}, {kTime, widths[2]}, {kEntry, widths[3]}};
  } else {
    const auto widths = print::Shares(width, {0.2, 0.8});
    columns = {{kTime, widths[0]}, {kEntry, widths[1]}};
  }
  const std::size_t cells_a_line = columns.size();
  Table table(engine, std::move(columns), LinesOf(layout));
  std::vector<Cell> cells;
  for (const DayRow& row : rows) {
    if (IsBlank(row)) continue;
    cells.insert(cells.end(), {row.time, row.entry});
    if (cells.size() < cells_a_line) continue;
    table.Row(cells);
    cells.clear();
  }
  if (!cells.empty()) table.Row(cells);
}

void PrintMonthHead(print::PageEngine& engine, const forms::ProgramVariables& variables,
                    text::Date today, text::Date month) {
  const std::string page = " (Page - " + std::to_string(engine.page_count()) + ")";
  const bool dated = variables.NoAsOfDate != 1;
  print::TitleLine(engine, dated ? print::AsOf(variables, today) + page : text::Trim(page), -2);
  const std::string title = "Monthly Calendar For " +
                            std::string(text::kMonthNames.at(text::MonthOf(month) - 1)) + ", " +
                            std::to_string(text::YearOf(month));
  print::TitleLine(engine, print::CompanyTitle(variables, title), kLargerTitle);
  engine.Skip(kAboveTable);
}

void PrintMonth(print::PageEngine& engine, const std::vector<MonthRow>& rows,
                const PageLayout& layout) {
  if (layout.two_columns) engine.SetColumns(2, kBetweenColumns);
  const auto widths = print::Shares(engine.ColumnWidth(), {0.156, 0.2, 0.64});
  Table table(engine, {{"Day", widths[0]}, {kTime, widths[1]}, {kEntry, widths[2]}},
              LinesOf(layout));
  for (const MonthRow& row : rows) {
    const std::string entry =
        layout.two_columns ? text::TrimRight(text::FormatText(row.entry, kNarrowEntry)) : row.entry;
    table.Row({row.day, row.time, entry}, row.day.empty() ? 0 : kAboveNewDay);
  }
}

std::string DayText(text::Date date, const DayRows& rows) {
  std::string content = DayTitle(date) + kLineEnd + std::string(kDayHeading) + kLineEnd;
  for (const DayRow& row : rows) {
    if (IsBlank(row)) continue;
    content += PadTo(" " + row.time, kDayHeading.find(kEntry)) + row.entry + kLineEnd;
  }
  return content;
}

std::string MonthText(const std::string& title, const std::vector<MonthRow>& rows) {
  std::string content = "Month Calendar For " + title + kLineEnd + PadTo("Day", kDayLabelWidth) +
                        std::string(kMonthHeading) + kLineEnd;
  for (const MonthRow& row : rows) {
    content += PadTo(row.day, kDayLabelWidth) + PadTo(row.time, kMonthHeading.find(kEntry)) +
               row.entry + kLineEnd;
  }
  return content;
}

}  // namespace tarnwell::planner
