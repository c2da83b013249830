#include "budget/budget_year.h"

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/leading_number.h"

namespace tarnwell::budget {

BudgetYear ReadBudgetYear(storage::ProgramFolder& folder, int year) {
  storage::SequentialReader file(folder, storage::file_names::BudgetYear(year));
  BudgetYear budget;
  if (file.is_unreadable()) budget.fault = file.fault();
  budget.rows = year_sheet::ReadRows(file, kItems, kColumns);
  for (std::string& month : budget.income) {
    if (file.AtEnd()) {
      month = kNoIncome;
      continue;
    }
    month = file.Next();
    if (text::LeadingNumber(month) == 0) month = "0";
  }
  while (!file.AtEnd()) budget.rest.push_back(file.Next());
  return budget;
}

storage::Outcome WriteBudgetYear(storage::ProgramFolder& folder, int year,
                                 const BudgetYear& budget) {
  storage::SequentialWriter file;
  year_sheet::WriteRows(file, budget.rows);
  for (const std::string& month : budget.income) file.WriteText(month);
  for (const std::string& value : budget.rest) file.WriteText(value);
  return file.Save(folder, storage::file_names::BudgetYear(year));
}

}  // namespace tarnwell::budget
