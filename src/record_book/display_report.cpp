#include "record_book/display_report.h"

#include <algorithm>
#include <cstddef>

#include "print/report.h"
#include "print/table.h"
#include "text/date_mask.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::record_book {
namespace {

constexpr std::string_view kListValue = " !@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@";
constexpr std::string_view kReportValue = "    !@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@";
constexpr std::string_view kReportCity = "    !@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@";
constexpr std::size_t kCity = 2;               // the place of city, state and zip code
constexpr std::size_t kLongestNameOfTwo = 41;  // characters of a name, with two on a line
constexpr const char* kTelephone = "    Phone:";
constexpr int kBelowHead = 120;           // twips
constexpr int kRoomForRow = 3;            // lines
constexpr int kRowsBetweenReports = 100;  // of progress

std::string Formatted(const std::string& value, std::string_view mask) {
  return text::TrimRight(text::FormatText(value, mask));
}

void AsOf(print::PageEngine& engine, const forms::ProgramVariables& variables, text::Date today,
          std::string_view mask) {
  if (variables.NoAsOfDate == 1) return;
  engine.Line("As of  " + text::FormatDate(today, mask), print::Align::kCenter);
}

std::string NameCell(const DisplayRow& row, const ListLayout& layout) {
  std::string name = layout.two_columns ? row.name.substr(0, kLongestNameOfTwo) : row.name;
  if (layout.telephones && !row.telephone.empty()) name += kTelephone + (" " + row.telephone);
  return name;
}

// With two names on a line the values of each stand under each other.
void AddCells(const DisplayRow& row, const ListLayout& layout, std::vector<print::Cell>& cells) {
  cells.emplace_back(NameCell(row, layout));
  std::string together;
  for (const std::string& value : row.values) {
    const std::string printed = Formatted(value, kListValue);
    if (!layout.two_columns) {
      cells.emplace_back(printed);
    } else if (!printed.empty()) {
      together += (together.empty() ? "" : "\n") + printed;
    }
  }
  if (layout.two_columns) cells.emplace_back(together);
}

std::vector<print::TableColumn> ColumnsOf(print::PageEngine& engine, const ListLayout& layout) {
  const std::size_t times = layout.two_columns ? 2 : 1;
  const std::size_t count = layout.two_columns ? 2 : layout.headings.size();
  const int width = engine.ColumnWidth() / static_cast<int>(times * count);
  std::vector<print::TableColumn> columns;
  for (std::size_t i = 0; i < times * count; ++i) {
    columns.push_back({layout.headings[i % count], width});
  }
  return columns;
}

}  // namespace

void ListHead(print::PageEngine& engine, const forms::ProgramVariables& variables,
              std::string_view title, text::Date today, std::string_view mask) {
  engine.Line(print::WithCompany(variables, title), print::Align::kCenter);
  AsOf(engine, variables, today, mask);
  engine.Skip(kBelowHead);
}

void ListRows(print::PageEngine& engine, const std::vector<DisplayRow>& rows,
              const ListLayout& layout, const Progress& progress) {
  const auto lines = layout.grid_lines ? print::TableLines::kAll : print::TableLines::kNone;
  print::Table table(engine, ColumnsOf(engine, layout), lines);
  const std::size_t step = layout.two_columns ? 2 : 1;
  for (std::size_t i = 0; i < rows.size(); i += step) {
    if (i % kRowsBetweenReports == 0 && !progress(static_cast<int>(i))) return;
    std::vector<print::Cell> cells;
    AddCells(rows[i], layout, cells);
    if (layout.two_columns && i + 1 < rows.size()) AddCells(rows[i + 1], layout, cells);
    table.Row(cells);
  }
}

std::string ListText(const std::vector<DisplayRow>& rows) {
  std::string text;
  for (const DisplayRow& row : rows) {
    text += row.name;
    for (const std::string& value : row.values) text += "\t" + value;
    text += "\r\n";
  }
  return text;
}

void CompleteReport::Head(std::string_view section) {
  const int page = engine_.page_count();
  engine_.Line(page == 1 ? title_ : title_ + "  Page - " + std::to_string(page),
               print::Align::kCenter);
  AsOf(engine_, variables_, today_, "Long Date");
  engine_.Skip(kBelowHead);
  engine_.Line(section);
  engine_.Skip(kBelowHead);
}

bool CompleteReport::AddSection(std::string_view caption, const std::vector<DisplayRow>& rows,
                                const Progress& progress) {
  if (rows.empty()) return true;
  if (has_sections_) engine_.NewPage();
  has_sections_ = true;
  Head(caption);
  int done = 0;
  for (const DisplayRow& row : rows) {
    if (done++ % kRowsBetweenReports == 0 && !progress(done)) return false;
    const int lines = std::max(kRoomForRow, static_cast<int>(row.values.size()) + 1);
    if (!engine_.HasRoom(lines * engine_.LineHeight())) {
      engine_.NewPage();
      Head(std::string(caption) + " (Continued) ");
    }
    engine_.Line(row.name);
    for (std::size_t i = 0; i < row.values.size(); ++i) {
      const std::string value = Formatted(row.values[i], i == kCity ? kReportCity : kReportValue);
      if (!value.empty()) engine_.Line(value);
    }
  }
  return true;
}

}  // namespace tarnwell::record_book
