// What leaves a display grid: lists and reports on paper, copies and exports.

#include "record_book/display_screen.h"

namespace tarnwell::record_book {

std::vector<DisplayRow> DisplayScreen::ShownRows() const {
  std::vector<DisplayRow> rows;
  for (int row = 1; row < grid.rows(); ++row) {
    if (grid.text(row, kValue).empty()) continue;
    DisplayRow& shown = rows.emplace_back();
    shown.name = grid.text(row, kName);
    for (int i = kValue; i < grid.columns(); ++i) shown.values.push_back(grid.text(row, i));
    shown.telephone = telephones_[static_cast<std::size_t>(row - 1)];
  }
  return rows;
}

void DisplayScreen::Copy() {
  context_.clipboard.SetText(ListText(ShownRows()));
  Message(
      {"Copy Option", "Data has been copied to the Windows Clipboard.", forms::Icon::kInformation});
}

void DisplayScreen::Export() { exporting.Open(grid, std::string(HeadingOf(Option())) + ".xls"); }

void DisplayScreen::OpenPrint(print::PrintJob job, bool is_list) {
  with_telephones.SetVisible(is_list);
  for (int i = 0; i < list_columns.size(); ++i) list_columns.option(i).SetEnabled(is_list);
  if (!is_list || list_columns.chosen() == forms::OptionGroup::kNone) list_columns.Choose(0);
  print.copy_page.SetEnabled(is_list);
  print.grid_lines->SetEnabled(is_list);
  job.printed_line = false;
  job.can_be_cancelled = true;
  job.guide_lines = settings::GuideLines::kDisplays;
  job.font = style_.font;
  print.Open(std::move(job));
}

void DisplayScreen::PrintList() {
  print::PrintJob job;
  const std::string title = shown_option.caption() + " List";
  job.title = title;
  job.page_head = [this, title](print::PageEngine& engine) {
    ListHead(engine, context_.variables, title, context_.clock.Today(), style_.list_date);
  };
  job.build = [this](print::PageEngine& engine) {
    const std::vector<DisplayRow> rows = ShownRows();
    ListLayout layout;
    for (int i = 0; i < grid.columns(); ++i) layout.headings.push_back(grid.column(i).title);
    layout.two_columns = list_columns.chosen() == 1;
    layout.telephones = with_telephones.checked();
    layout.grid_lines = context_.variables.GridLinesOnPrint == 1;
    ListRows(engine, rows, layout, [this, total = static_cast<int>(rows.size())](int done) {
      return print.ReportProgress(done, total);
    });
  };
  OpenPrint(std::move(job), true);
}

void DisplayScreen::PrintReport() {
  print::PrintJob job;
  job.title = style_.report_title;
  job.build = [this](print::PageEngine& engine) { BuildReport(engine); };
  OpenPrint(std::move(job), false);
}

// All records, whatever is sought on the screen.
void DisplayScreen::BuildReport(print::PageEngine& engine) {
  CompleteReport report(engine, context_.variables, style_.report_title, context_.clock.Today());
  const int rows_of_section = static_cast<int>(names_.entries.size());
  const int total = rows_of_section * static_cast<int>(style_.book.options.size());
  int before = 0;
  for (const DisplayOption& option : style_.book.options) {
    const DisplayRows read = ReadDisplay(context_.folder, style_.book, option, names_.entries);
    const bool goes_on = report.AddSection(option.caption, read.rows, [&](int done) {
      return print.ReportProgress(before + done, total);
    });
    if (!goes_on) return;
    before += rows_of_section;
  }
}

}  // namespace tarnwell::record_book
