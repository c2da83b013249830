#include <gtest/gtest.h>

#include "vehicles/fuel_cells.h"
#include "vehicles/fuel_totals.h"
#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {
namespace {

HistoryEntry Entry(const char* odometer, const char* text, const char* cost = "") {
  return {odometer, {"3/13/2026", ""}, text, cost};
}

FuelEntry Fill(const char* driven, const char* fuel, const char* rate, const char* cost) {
  return {{"3/13/2026", ""}, "", "", driven, fuel, rate, cost};
}

TEST(HistoryMergeTest, WhatIsThereAlreadyIsNotAddedAgain) {
  const ScheduleRow oil{"Change Oil and Filter", "3,000", "3", "12,000",
                        {"3/13/2026", ""},       "$25.00"};
  const ScheduleRow planned{"Rotate Tires", "6,000", "6", "", {}, ""};
  const ScheduleRow nameless{"", "", "", "12,000", {}, ""};
  const auto additions = EntriesOf({oil, planned, nameless});
  const HistoryEntry changed = Entry("12,000", "Changed Oil and Filter", "$25.00");
  EXPECT_EQ(additions, std::vector{changed});
  const auto once = MergedHistory({Entry("15,000", "Wash")}, additions);
  EXPECT_EQ(once, (std::vector{changed, Entry("15,000", "Wash")}));
  EXPECT_EQ(MergedHistory(once, additions), once);
}

TEST(HistoryMergeTest, EntriesLieByOdometerAndKeepTheirOrderAtOne) {
  const auto merged = MergedHistory(
      {Entry("9,000", "b"), Entry("10,000", "c"), Entry("9,000", "a"), Entry("9,000", "a")},
      {Entry("", "no odometer")});
  EXPECT_EQ(merged, (std::vector{Entry("", "no odometer"), Entry("9,000", "b"), Entry("9,000", "a"),
                                 Entry("10,000", "c")}));
  EXPECT_EQ(JoinedHistory({Entry("9,000", "m")}, {Entry("9,000", "r"), Entry("8,000", "r")}),
            (std::vector{Entry("8,000", "r"), Entry("9,000", "m"), Entry("9,000", "r")}));
  const std::vector<HistoryEntry> many(4000, Entry("1", "x"));
  EXPECT_EQ(JoinedHistory(many, many).size(), 6100u);
}

TEST(HistoryMergeTest, CostsAreSummed) {
  EXPECT_EQ(
      HistoryCost({Entry("", "", "$1,200.25"), Entry("", "", "free"), Entry("", "", "4.5  ")}),
      "$1,204.75");
  EXPECT_EQ(HistoryCost({}), "$0.00");
}

TEST(FuelTest, CellsShowTheirNumbersWithTheirBlanks) {
  EXPECT_EQ(FuelText(kPrevious, "12,000"), "12,000         ");
  EXPECT_EQ(FuelText(kCurrent, "12300.4"), "12,300          ");
  EXPECT_EQ(FuelText(kCurrent, "0"), "0          ");
  EXPECT_EQ(FuelText(kFuel, "15"), "15.00    ");
  EXPECT_EQ(FuelText(kCost, "45"), "$45.00  ");
  EXPECT_EQ(FuelText(kCost, "  "), "");
  EXPECT_EQ(DrivenText("12,000", "12,300"), "300      ");
  EXPECT_EQ(DrivenText("12,000", "12,000"), "      ");
  EXPECT_EQ(DrivenText("12,300", "12,000"), std::nullopt);
  EXPECT_EQ(DrivenText("", "12,000"), std::nullopt);
  EXPECT_EQ(RateText("300      ", "15.00"), "20.00        ");
  EXPECT_EQ(RateText("300", "0"), std::nullopt);
}

TEST(FuelTest, TheRateOfTheTotalsIsThatOfTheSums) {
  std::vector<FuelEntry> rows{Fill("300", "10", "30", "$20.00"), Fill("100", "10", "10", "$22.50")};
  FuelTotals totals = TotalFuel(rows);
  EXPECT_EQ(totals.DrivenText(), "400.00    ");
  EXPECT_EQ(totals.FuelText(), "20.00    ");
  EXPECT_EQ(totals.RateText(), "20.00        ");
  EXPECT_EQ(totals.CostText(), "$42.50     ");
  EXPECT_EQ(TotalFuel({}).RateText(), "0.00        ");
  // Fuel alone doesn't count, nor does what stands behind a hundred rows without figures.
  rows.push_back(Fill("", "99", "", ""));
  rows.resize(101);
  rows.push_back(Fill("50", "10", "5", ""));
  EXPECT_EQ(TotalFuel(rows).driven, 450);
  EXPECT_EQ(TotalFuel(rows).fuel, 30);
  rows.insert(rows.begin() + 50, FuelEntry());
  EXPECT_EQ(TotalFuel(rows).driven, 400);
}

TEST(FuelTest, RowsBehindAHundredBlankOnesWouldBeLost) {
  const FuelEntry row = Fill("1", "1", "1", "");
  for (const auto& [blanks, is_lost] : {std::pair{99, false}, {100, true}}) {
    std::vector<FuelEntry> rows(static_cast<std::size_t>(blanks) + 2);
    rows.front() = rows.back() = row;
    EXPECT_EQ(HasLostRows(rows), is_lost) << blanks;
    EXPECT_EQ(KeptRows(rows).size(), is_lost ? 1u : rows.size()) << blanks;
  }
  EXPECT_FALSE(HasLostRows(std::vector<FuelEntry>(3000)));
}

TEST(FuelTest, TheCalculatorTakesReadingsInEitherOrderOrADistance) {
  const struct {
    const char* what;
    Trip trip;
    const char* driven;
    const char* rate;
  } cases[] = {
      {"readings", {"12,300", "12,000", "", "15"}, "300", "20."},
      {"the other way", {"12,000", "12,300", "", "14.5"}, "300", "20.69"},
      {"a distance", {"12,000", "12,300", "1000", "50"}, "1,000", "20."},
      {"no fuel", {"12,000", "12,300", "", "0"}, "300", ""},
      {"no distance", {"12,000", "12,000", "", "10"}, "", "."},
  };
  for (const auto& c : cases) {
    const TripResult result = ComputeTrip(c.trip);
    EXPECT_EQ(result.driven, c.driven) << c.what;
    EXPECT_EQ(result.rate, c.rate) << c.what;
  }
  EXPECT_EQ(AmountTyped("15."), "15.");
  EXPECT_EQ(AmountTyped("15-"), "15");
  EXPECT_EQ(AmountTyped("15x"), "15");
  EXPECT_EQ(AmountTyped("+1,0"), "+1,0");
}

}  // namespace
}  // namespace tarnwell::vehicles
