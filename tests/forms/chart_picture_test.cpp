#include "forms/chart_picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwell::forms {
namespace {

using ::testing::ElementsAre;

TEST(ChartPicture, AnAxisHoldsAllBarsInNoMoreThanTenRoundSteps) {
  struct Case {
    ChartKind kind;
    std::vector<double> values;
    double least;
    double most;
    double step;
  };
  for (const Case& one : {
           Case{ChartKind::kBar, {0.4, 7}, 0, 7, 1},
           Case{ChartKind::kBar, {100, 250.5}, 0, 300, 50},
           Case{ChartKind::kBar, {1200, -800}, -1000, 1500, 500},
           Case{ChartKind::kBar, {-3, -16}, -16, 0, 2},
           Case{ChartKind::kStacked, {1200, 400, -800}, -1000, 2000, 500},
           Case{ChartKind::kBar, {0, 0}, 0, 1, 1},
           Case{ChartKind::kBar, {}, 0, 1, 1},
           Case{ChartKind::kStacked, {1e300, 1e300}, 0, 2e15, 5e14},
       }) {
    ChartPicture picture{{}, one.kind};
    for (const double value : one.values) picture.points.push_back({"", value});
    const ChartScale scale = ScaleOf(picture);
    EXPECT_EQ(scale.least, one.least) << one.most;
    EXPECT_EQ(scale.most, one.most);
    EXPECT_EQ(scale.step, one.step);
  }
}

TEST(ChartPicture, APartCountsWithItsSizeAndIsWrittenWithItsSign) {
  const ChartPicture picture{{{"Rent", 600}, {"Wages", 900}, {"Balance", -500, true}}};
  const std::vector<double> shares = ChartShares(picture);
  EXPECT_THAT(shares, ElementsAre(0.3, 0.45, 0.25));
  EXPECT_EQ(ChartPercent(picture.points[1], shares[1]), "45.00%");
  EXPECT_EQ(ChartPercent(picture.points[2], shares[2]), "-25.00%");
  EXPECT_THAT(ChartShares({{{"None", 0}}}), ElementsAre(0));
  EXPECT_EQ(ChartAmount(1234567.5), "$1,234,568");
  EXPECT_EQ(ChartAmount(-500), "-$500");
}

}  // namespace
}  // namespace tarnwell::forms
