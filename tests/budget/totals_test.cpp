#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "budget/year_totals.h"

namespace tarnwell::budget {
namespace {

using ::testing::ElementsAre;

year_sheet::Row Of(const std::string& item, const std::vector<std::string>& months) {
  year_sheet::Row row(1 + kMonths);
  row[0] = item;
  std::ranges::copy(months, row.begin() + 1);
  return row;
}

MonthTexts IncomeOfAll(const std::string& income) {
  MonthTexts months;
  months.fill(income);
  return months;
}

// All in January.
struct JanuaryCase {
  std::vector<std::string> cells;
  std::string income;
  std::string expenses;
  std::string shown_income;
  std::string balance;
  bool overdrawn = false;
  bool too_large = false;
};

class January : public ::testing::TestWithParam<JanuaryCase> {};

TEST_P(January, IsSummedAsByHand) {
  const JanuaryCase& one = GetParam();
  year_sheet::Rows rows;
  for (const std::string& cell : one.cells) rows.push_back(Of("", {cell}));
  const MonthTotals totals = ComputeMonths(rows, {one.income});
  EXPECT_EQ(totals.expenses[0], one.expenses);
  EXPECT_EQ(totals.income[0], one.shown_income);
  EXPECT_EQ(totals.balance[0], one.balance);
  EXPECT_EQ(totals.overdrawn[0], one.overdrawn);
  EXPECT_EQ(totals.too_large[0], one.too_large);
}

INSTANTIATE_TEST_SUITE_P(
    Sums, January,
    ::testing::Values(
        JanuaryCase{{}, "", ".00", "0.00", ".00"},
        JanuaryCase{{"12.50", "", "7.25"}, "20.00", "19.75", "20.00", ".25"},
        JanuaryCase{{"100.00"}, "100.00", "100.00", "100.00", ".00"},
        JanuaryCase{{"100.01"}, "100.00", "100.01", "100.00", "-.01", true},
        JanuaryCase{{"100.00"}, "-5.00", "100.00", "0.00", "-100.00", true},
        // One comma goes, and no more; what is no number as a whole counts nothing.
        JanuaryCase{{"1,200.50", "1,2,0", "abc", "5 eggs", "$7.00", "(5)"},
                    "0",
                    "1200.50",
                    "0.00",
                    "-1200.50",
                    true},
        JanuaryCase{{"1e3", "-1.00", "+2"}, "0", "1001.00", "0.00", "-1001.00", true},
        JanuaryCase{{"1e99", "nan", "inf", "1e-99", "4.00"}, "9.00", "4.00", "9.00", "5.00"},
        // Each cell is cut to single precision: 24 of 4096.01 are 98304.24 without that.
        JanuaryCase{std::vector<std::string>(24, "4096.01"), "99999.99", "98304.23", "99999.99",
                    "1695.76"},
        // Eleven of them pass 100000, which is seen at the next row only.
        JanuaryCase{std::vector<std::string>(11, "9999.99"), "0", "109999.89", "0.00", "-109999.89",
                    true, false},
        JanuaryCase{{"9999.99", "9999.99", "9999.99", "9999.99", "9999.99", "9999.99", "9999.99",
                     "9999.99", "9999.99", "9999.99", "9999.99", "", "1.50"},
                    "0",
                    "100000.50",
                    "0.00",
                    "-100000.50",
                    true,
                    true}));

TEST(BudgetIncome, IsRoundedAndLimited) {
  EXPECT_EQ(IncomeOf("99999.99").text, "99999.99");
  EXPECT_FALSE(IncomeOf("99999.99").was_too_large);
  for (const char* typed : {"100000", "99999.996"}) {
    EXPECT_EQ(IncomeOf(typed).text, "99999.99");
    EXPECT_TRUE(IncomeOf(typed).was_too_large) << typed;
  }
}

YearTotals Year(const year_sheet::Rows& rows, const MonthTexts& income) {
  return ComputeYear(rows, ComputeMonths(rows, income));
}

TEST(BudgetYearTotals, HoldEachItemsPartOfIncomeAndOfExpenses) {
  const YearTotals year =
      Year({Of("Rent", {"100.00", "100.00", "50.00"}), Of("Idle", {}), Of("", {"25.00"}),
            Of("Wages", {"", "725.00"}), Of("Refund", {"10.00", "-20.00", "4.00"})},
           IncomeOfAll("100.00"));
  EXPECT_EQ(year.expenses, " 994.00 ");
  EXPECT_EQ(year.income, " 1200.00 ");
  EXPECT_EQ(year.balance, " 206.00 ");
  EXPECT_EQ(year.expenses_share, "     82.83%");
  EXPECT_EQ(year.income_share, "     100.00%");
  EXPECT_EQ(year.balance_share, "     17.17%");
  EXPECT_FALSE(year.overdrawn);
  struct Expected {
    const char* item;
    const char* total;
    const char* of_income;
    const char* of_expenses;
  };
  // A sum of 0 or below is dropped where it comes up: the refund goes on from nothing.
  const Expected expected[] = {{"Rent", "250.00", " 20.83%", " 25.15%"},
                               {"Idle", "", "", ""},
                               {"Wages", "725.00", " 60.42%", " 72.94%"},
                               {"Refund", "4.00", " 0.33%", " 0.40%"}};
  ASSERT_EQ(year.items.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(year.items[i].item, expected[i].item);
    EXPECT_EQ(year.items[i].total, expected[i].total);
    EXPECT_EQ(PercentOf(year.items[i], year, PercentBase::kIncome), expected[i].of_income);
    EXPECT_EQ(PercentOf(year.items[i], year, PercentBase::kExpenses), expected[i].of_expenses);
  }
  EXPECT_THAT(ChartPoints(year),
              ElementsAre(forms::ChartPoint{"Rent", 250}, forms::ChartPoint{"Wages", 725},
                          forms::ChartPoint{"Refund", 4}, forms::ChartPoint{"Balance", 206, true}));
}

TEST(BudgetYearTotals, WantEntriesAndAnIncomeAndExpenses) {
  const MonthTexts none = IncomeOfAll("0.00");
  const MonthTexts some = IncomeOfAll("1.00");
  const year_sheet::Rows names{Of("Rent", {})};
  const year_sheet::Rows amounts{Of("Rent", {"500.00"})};
  EXPECT_FALSE(HasEntries(names, none));
  EXPECT_TRUE(HasEntries(names, some));
  EXPECT_TRUE(HasEntries(amounts, none));
  EXPECT_FALSE(Year(amounts, none).has_income());
  const YearTotals without_expenses = Year(names, some);
  EXPECT_TRUE(without_expenses.has_income());
  EXPECT_FALSE(without_expenses.has_figures());
  EXPECT_TRUE(ChartPoints(without_expenses).empty());
  const YearTotals overdrawn = Year(amounts, some);
  EXPECT_TRUE(overdrawn.overdrawn);
  EXPECT_EQ(overdrawn.balance, " -488.00 ");
  EXPECT_EQ(overdrawn.balance_share, "     -4066.67%");
  EXPECT_EQ(ChartPoints(overdrawn).back(), (forms::ChartPoint{"Balance", -488, true}));
}

}  // namespace
}  // namespace tarnwell::budget
