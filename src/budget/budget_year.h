// A year's budget on the disk. docs/formats/budget-year.md has the layout.

#pragma once

#include "budget/month_totals.h"
#include "storage/fault.h"
#include "storage/program_folder.h"
#include "year_sheet/rows.h"

namespace tarnwell::budget {

inline constexpr int kItems = 500;   // rows of a budget
inline constexpr int kColumns = 13;  // the item and its months
inline constexpr const char* kCellMask = "####.00";

// Always kItems rows of kColumns texts. A missing file gives blank ones without income, and so does
// one that can't be read, with the reason in `fault`: nothing may be written over it.
struct BudgetYear {
  year_sheet::Rows rows;
  MonthTexts income;
  year_sheet::Row rest;  // what a longer file holds behind them; it is written back
  storage::Fault fault = storage::Fault::kNone;
};
BudgetYear ReadBudgetYear(storage::ProgramFolder& folder, int year);
// `fault` doesn't count.
storage::Outcome WriteBudgetYear(storage::ProgramFolder& folder, int year,
                                 const BudgetYear& budget);

}  // namespace tarnwell::budget
