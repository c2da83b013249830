#pragma once

#include <string>
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

  // Opens the print panel; with nothing to print there is only a box.
  void PrintDay(text::Date date, const DayRows& rows);
  void PrintMonth();

  void ExportMonth(std::string_view file_name);

  void CopyDay(text::Date date, const DayRows& rows);
  void CopyMonth();

 private:
  void Open(print::PrintJob job);
  void ClosePrint();
  void PutOnClipboard(const std::string& content);
  void ReportNothingToCopy();

  forms::Form& form_;
  forms::Context& context_;
};

}  // namespace tarnwell::planner
