#pragma once

#include <functional>
#include <string_view>

#include "forms/choice.h"
#include "forms/context.h"
#include "forms/form.h"
#include "parts/export_panel.h"
#include "planner/day_rows.h"
#include "planner/month_panel.h"
#include "print/print_panel.h"
#include "text/date.h"

namespace tarnwell::planner {

// What leaves the planner: the month's list, and the printed pages and clipboard texts of the day
// and of the month.
class PlannerPages {
 public:
  PlannerPages(forms::Form& form, forms::Context& context);

  MonthPanel month;
  print::PrintPanel print;
  parts::ExportPanel exporting;
  forms::OptionGroup columns{
      print.options_frame, "Option83", {"One Column Output", "Two Column Output"}};

  // Puts the print panel in the place of `below` until it is closed; with nothing to print there is
  // only a box.
  void PrintDay(text::Date date, const DayRows& rows, forms::Panel& below);
  void PrintMonth();

  // Puts the export panel in the month panel's place until it is closed.
  void ExportMonth(std::string_view file_name);

  void CopyDay(text::Date date, const DayRows& rows);
  void CopyMonth();

  std::function<void()> on_print;        // the print panel was opened
  std::function<void()> on_export;       // the export panel was opened or closed
  std::function<void()> on_print_close;  // it was closed, and what lay below is shown again

 private:
  void Open(print::PrintJob job, forms::Panel& below);
  void ClosePrint();
  void PutOnClipboard(const std::string& content);
  void ReportNothingToCopy();

  forms::Form& form_;
  forms::Context& context_;
  forms::Panel* below_ = nullptr;
};

}  // namespace tarnwell::planner
