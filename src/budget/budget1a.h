#pragma once

#include <functional>
#include <string>

#include "budget/budget_report.h"
#include "budget/totals_panel.h"
#include "forms/choice.h"
#include "forms/control_array.h"
#include "year_sheet/year_sheet.h"

namespace tarnwell::budget {

// The company's budget of a year: what each item costs in each month, and what is left of the
// income.
class Budget1a : public year_sheet::YearSheet {
 public:
  explicit Budget1a(forms::Context& context);

  forms::Label expenses_title{sheet, "Label4", "Total Expenses: ", forms::LabelRole::kNote};
  forms::ControlArray<forms::Label, kMonths> expenses{sheet, "Label3", std::string_view(),
                                                      forms::LabelRole::kNote};
  forms::Label income_title{sheet, "Label6", "Total Income: ", forms::LabelRole::kNote};
  forms::ControlArray<forms::Label, kMonths> income{sheet, "Label5", std::string_view(),
                                                    forms::LabelRole::kNote};
  forms::Label balance_title{sheet, "Label8", "Balance: ", forms::LabelRole::kNote};
  forms::ControlArray<forms::Label, kMonths> balance{sheet, "Label7", std::string_view(),
                                                     forms::LabelRole::kNote};
  TotalsPanel year_totals{*this};
  forms::Panel preparing{*this, "Panel3D2", " Preparing Printer Output. . ."};
  forms::Command cancel_print{preparing, "Command13", "&Cancel Print", {.cancel = true}};
  forms::CheckBox print_graph{print.options_frame, "SSCheck1", "Print Graph"};

 protected:
  storage::Fault ReadYear(int year) override;
  storage::Outcome WriteYear(int year) override;
  std::vector<std::string> TextsBeside() const override;
  void PutTextsBeside(std::vector<std::string> texts) override;
  std::string FileOf(int year) const override;
  void Recompute(int row) override;
  void InsertRow(int row) override;
  void RemoveRow(int row) override;
  void ShowTotals() override;
  print::PrintJob Report() override;
  std::string ClipboardText() override;
  std::vector<forms::Control*> Editors() override;

 private:
  void ConnectTotals();
  void EnterIncome(std::size_t month);
  print::PrintJob YearReport();
  print::PrintJob TotalsReport();
  void Prepare(const std::function<void()>& build);
  PrintedYear Shown() const;

  MonthTotals months_;
  year_sheet::Row rest_;  // of a file that holds more than a budget
  bool is_cancelled_ = false;
};

}  // namespace tarnwell::budget
