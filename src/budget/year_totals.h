// A year's sums, what part of the whole each item takes, and the points of its chart.

#pragma once

#include <string>
#include <vector>

#include "budget/month_totals.h"
#include "forms/chart_picture.h"

namespace tarnwell::budget {

struct ItemTotal {
  std::string item;
  std::string total;  // by "####.00"; empty for none
};

struct YearTotals {
  // By "######.00 ", behind a blank.
  std::string expenses;
  std::string income;
  // Empty, and `items` with them, where there are no expenses or no income.
  std::string balance;
  std::string expenses_share;  // of the income, as are the others
  std::string income_share;
  std::string balance_share;
  bool overdrawn = false;        // the balance lies below 0
  std::vector<ItemTotal> items;  // of each row with an item

  bool has_income() const;
  bool has_figures() const { return !balance.empty(); }
};
YearTotals ComputeYear(const year_sheet::Rows& rows, const MonthTotals& months);

// Any cell of a month holds a text, or any month has an income.
bool HasEntries(const year_sheet::Rows& rows, const MonthTexts& income);

enum class PercentBase { kIncome, kExpenses };
// " 12.50%"; empty for an item without a total.
std::string PercentOf(const ItemTotal& item, const YearTotals& year, PercentBase base);
// One for each item with a total, and "Balance" last; none where there are no figures.
std::vector<forms::ChartPoint> ChartPoints(const YearTotals& year);

}  // namespace tarnwell::budget
