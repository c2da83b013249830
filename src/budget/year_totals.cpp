#include "budget/year_totals.h"

#include <algorithm>

#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::budget {
namespace {

constexpr const char* kItemMask = "####.00";
constexpr const char* kBeforeShare = "     ";

std::string YearText(double amount) { return " " + text::FormatNumber(amount, "######.00 "); }

std::string Percent(double part, double whole) {
  return text::FormatNumber(part / whole, "Percent");
}

// Each step goes through text, so what is rounded once stays so.
std::string SumOf(const MonthTexts& months) {
  std::string sum = YearText(0);
  for (const std::string& month : months) {
    sum = YearText(text::LeadingNumber(sum) + text::LeadingNumber(month));
  }
  return sum;
}

std::string TotalOf(const year_sheet::Row& row) {
  std::string total;
  for (std::size_t month = 1; month <= kMonths; ++month) {
    const double sum = text::LeadingNumber(total) + text::LeadingNumber(row[month]);
    total = sum > 0 ? text::FormatNumber(sum, kItemMask) : "";
  }
  return total;
}

}  // namespace

bool YearTotals::has_income() const { return text::LeadingNumber(income) > 0; }

YearTotals ComputeYear(const year_sheet::Rows& rows, const MonthTotals& months) {
  YearTotals year;
  year.expenses = SumOf(months.expenses);
  year.income = SumOf(months.income);
  const double expenses = text::LeadingNumber(year.expenses);
  const double income = text::LeadingNumber(year.income);
  if (income <= 0 || expenses == 0) return year;
  year.balance = YearText(income - expenses);
  const double balance = text::LeadingNumber(year.balance);
  year.expenses_share = kBeforeShare + Percent(expenses, income);
  year.income_share = kBeforeShare + Percent(1, 1);
  year.balance_share = kBeforeShare + Percent(balance, income);
  year.overdrawn = balance < 0;
  for (const year_sheet::Row& row : rows) {
    if (!text::Trim(row[0]).empty()) year.items.push_back({row[0], TotalOf(row)});
  }
  return year;
}

bool HasEntries(const year_sheet::Rows& rows, const MonthTexts& income) {
  const auto has_amount = [](const year_sheet::Row& row) {
    return std::any_of(row.begin() + 1, row.end(),
                       [](const std::string& cell) { return !cell.empty(); });
  };
  return std::ranges::any_of(rows, has_amount) ||
         std::ranges::any_of(
             income, [](const std::string& month) { return text::LeadingNumber(month) > 0; });
}

std::string PercentOf(const ItemTotal& item, const YearTotals& year, PercentBase base) {
  if (item.total.empty()) return {};
  const std::string& whole = base == PercentBase::kIncome ? year.income : year.expenses;
  return " " + Percent(text::LeadingNumber(item.total), text::LeadingNumber(whole));
}

std::vector<forms::ChartPoint> ChartPoints(const YearTotals& year) {
  std::vector<forms::ChartPoint> points;
  if (!year.has_figures()) return points;
  for (const ItemTotal& item : year.items) {
    if (!item.total.empty()) points.push_back({item.item, text::LeadingNumber(item.total)});
  }
  points.push_back({"Balance", text::LeadingNumber(year.balance), true});
  return points;
}

}  // namespace tarnwell::budget
