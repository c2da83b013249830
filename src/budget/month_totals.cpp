#include "budget/month_totals.h"

#include <charconv>
#include <system_error>

#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::budget {
namespace {

constexpr double kTooLarge = 100000;
constexpr double kGoesOnFrom = 99999;
constexpr const char* kMostIncome = "99999.99";

// 0 for a cell that is no number as a whole.
double AmountOf(const std::string& cell) {
  std::string digits = text::Trim(cell);
  if (const std::size_t comma = digits.find(','); comma != std::string::npos) {
    digits.erase(comma, 1);
  }
  if (digits.starts_with('+')) digits.erase(0, 1);
  float amount = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, amount);
  return error == std::errc() && stop == end && amount - amount == 0 ? amount : 0;
}

}  // namespace

MonthTotals ComputeMonths(const year_sheet::Rows& rows, const MonthTexts& income) {
  MonthTotals totals;
  for (std::size_t month = 0; month < kMonths; ++month) {
    double sum = 0;
    for (const year_sheet::Row& row : rows) {
      if (sum >= kTooLarge) {
        totals.too_large[month] = true;
        sum = kGoesOnFrom;
      }
      const std::string& cell = row[month + 1];
      if (!cell.empty()) sum += AmountOf(cell);
    }
    const double received = text::LeadingNumber(income[month]);
    const auto balance = static_cast<float>((received > 0 ? received : 0) - sum);
    totals.expenses[month] = text::FormatNumber(sum, kIncomeMask);
    totals.income[month] = received > 0 ? income[month] : kNoIncome;
    totals.balance[month] = text::FormatNumber(balance, kIncomeMask);
    totals.overdrawn[month] = balance < 0;
  }
  return totals;
}

TypedIncome IncomeOf(std::string_view typed) {
  std::string text = text::FormatNumber(text::LeadingNumber(typed), kIncomeMask);
  if (text::LeadingNumber(text) >= kTooLarge) return {kMostIncome, true};
  return {std::move(text)};
}

}  // namespace tarnwell::budget
