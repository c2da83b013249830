#include "workarea/todo_report.h"

#include <string>

#include "print/report.h"
#include "print/table.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::workarea {
namespace {

constexpr const char* kTitle = "Project Timeline/To Do List";
constexpr double kLargerTitle = 2;  // points
constexpr int kAboveTable = 120;    // twips
constexpr double kItemShare = 0.4;
constexpr double kDateShare = 0.2;
constexpr int kDates = 3;

// 45 characters, filled from the left.
std::string PrintedItem(const std::string& item) {
  const std::string mask = "!" + std::string(kLongestToDoItem, '@');
  return text::TrimRight(text::FormatText(item, mask));
}

std::vector<print::TableColumn> Columns(int width) {
  const auto widths = print::Shares(width, {kItemShare, kDateShare, kDateShare, kDateShare});
  std::vector<print::TableColumn> columns;
  for (std::size_t i = 0; i <= kDates; ++i) {
    columns.push_back({std::string(kToDoTitles[i]), widths[i]});
  }
  return columns;
}

}  // namespace

void PrintTimeline(print::PageEngine& engine, const forms::ProgramVariables& variables,
                   const std::vector<ToDoRow>& rows) {
  print::TitleLine(engine, print::CompanyTitle(variables, kTitle), kLargerTitle);
  engine.Skip(kAboveTable);
  print::Table table(
      engine, Columns(engine.ColumnWidth()),
      variables.GridLinesOnPrint == 1 ? print::TableLines::kAll : print::TableLines::kNone);
  for (const ToDoRow& row : rows) {
    if (!IsBlank(row)) table.Row({PrintedItem(row.item), row.to_do, row.actual, row.review});
  }
}

}  // namespace tarnwell::workarea
