// The three rows of totals below a year's grid.

#pragma once

#include <array>
#include <string>

#include "forms/color.h"
#include "year_sheet/rows.h"

namespace tarnwell::budget {

inline constexpr std::size_t kMonths = 12;
inline constexpr const char* kIncomeMask = "#####.00";
inline constexpr const char* kNoIncome = "0.00";

inline constexpr forms::Color kOverdrawn = 0x0000C0;  // of a balance below 0: red

using MonthTexts = std::array<std::string, kMonths>;

struct MonthTotals {
  MonthTexts expenses;
  MonthTexts income;  // kNoIncome for what isn't above 0
  MonthTexts balance;
  std::array<bool, kMonths> overdrawn{};  // the balance lies below 0
  std::array<bool, kMonths> too_large{};  // the expenses came to 100000 before the last row
};

// Of all rows, those without an item too. Cells count in single precision, without their first
// comma; one that is no number counts nothing. Where a month's sum has come to 100000 at a row, it
// goes on there from 99999.
MonthTotals ComputeMonths(const year_sheet::Rows& rows, const MonthTexts& income);

// What becomes of an income that was typed: its amount, or 99999.99 for one that is too large.
struct TypedIncome {
  std::string text;
  bool was_too_large = false;
};
TypedIncome IncomeOf(std::string_view typed);

}  // namespace tarnwell::budget
