#include "planner/planner_pages.h"

#include "forms/message.h"
#include "planner/day_copy.h"
#include "planner/planner_report.h"

namespace tarnwell::planner {
namespace {

PageLayout LayoutOf(const forms::OptionGroup& columns, const forms::ProgramVariables& variables) {
  return {columns.chosen() == 1, variables.GridLinesOnPrint == 1};
}

}  // namespace

PlannerPages::PlannerPages(forms::Form& form, forms::Context& context)
    : month(form),
      print(form, context,
            {.grid_lines_name = "Check83", .grid_lines_caption = "Print Grid Lines"}),
      exporting(form, context, {.name_field = "Text100"}),
      form_(form),
      context_(context) {
  columns.Choose(0);
  columns.on_pick = [this](int) { print.Rebuild(); };
  month.print.on_click = [this] { PrintMonth(); };
  print.on_close = [this] { ClosePrint(); };
}

void PlannerPages::PrintDay(text::Date date, const DayRows& rows) {
  if (!HasRows(rows)) return print::ReportNothingToPrint(context_);
  print::PrintJob job;
  job.build = [this, date, rows](print::PageEngine& engine) {
    planner::PrintDay(engine, context_.variables, date, rows,
                      LayoutOf(columns, context_.variables));
  };
  job.font = settings::PrinterFont::kPlannerDay;
  print.as_of->SetVisible(false);  // only the month's head has that date
  Open(std::move(job));
}

void PlannerPages::PrintMonth() {
  if (month.rows().empty()) return print::ReportNothingToPrint(context_);
  print::PrintJob job;
  job.printed_line = false;
  job.page_head = [this](print::PageEngine& engine) {
    PrintMonthHead(engine, context_.variables, context_.clock.Today(), month.month());
  };
  job.build = [this](print::PageEngine& engine) {
    planner::PrintMonth(engine, month.rows(), LayoutOf(columns, context_.variables));
  };
  job.guide_lines = settings::GuideLines::kPlannerMonth;
  job.font = settings::PrinterFont::kPlannerMonth;
  print.as_of->SetVisible(true);
  Open(std::move(job));
}

void PlannerPages::Open(print::PrintJob job) {
  form_.menus().SetVisible(false);
  form_.SetStatus("Print");
  print.Open(std::move(job));
}

void PlannerPages::ClosePrint() {
  form_.menus().SetVisible(true);
  form_.SetStatus(month.panel.visible() ? "View Month" : "");
}

void PlannerPages::ExportMonth(std::string_view file_name) {
  exporting.Open(month.grid, file_name);
}

void PlannerPages::CopyDay(text::Date date, const DayRows& rows) {
  if (!HasRows(rows)) return ReportNothingToCopy();
  PutOnClipboard(DayText(date, rows));
}

void PlannerPages::CopyMonth() {
  if (month.rows().empty()) return ReportNothingToCopy();
  PutOnClipboard(MonthText(month.panel.caption(), month.rows()));
}

void PlannerPages::PutOnClipboard(const std::string& content) {
  context_.clipboard.SetText(content);
  forms::ShowMessage(context_, {"Copy Option", "Data has been copied to the Windows Clipboard.",
                                forms::Icon::kInformation});
}

void PlannerPages::ReportNothingToCopy() {
  forms::ShowMessage(
      context_, {"Copy", "There are currently No Entries to Copy!", forms::Icon::kInformation});
}

}  // namespace tarnwell::planner
