#include "forms/chart_picture.h"

#include <algorithm>
#include <cmath>

#include "text/number_mask.h"

namespace tarnwell::forms {
namespace {

constexpr double kMostSteps = 10;
constexpr double kLeastStep = 1;  // labels have no cents
constexpr double kMostValue = 1e15;

// The least of 1, 2, 5, 10, 20, … that is no less.
double RoundStep(double least) {
  double power = kLeastStep;
  for (;; power *= 10) {
    for (const double step : {power, 2 * power, 5 * power}) {
      if (step >= least) return step;
    }
  }
}

}  // namespace

std::string ChartAmount(double value) { return text::FormatNumber(value, "$##,###,###"); }

std::vector<double> ChartShares(const ChartPicture& picture) {
  double all = 0;
  for (const ChartPoint& point : picture.points) all += std::abs(point.value);
  std::vector<double> shares;
  for (const ChartPoint& point : picture.points) {
    shares.push_back(all > 0 ? std::abs(point.value) / all : 0);
  }
  return shares;
}

std::string ChartPercent(const ChartPoint& point, double share) {
  return text::FormatNumber(point.value < 0 ? -share : share, "##0.00%");
}

ChartScale ScaleOf(const ChartPicture& picture) {
  double below = 0;
  double above = 0;
  for (const ChartPoint& point : picture.points) {
    const double value = std::clamp(point.value, -kMostValue, kMostValue);
    if (picture.kind == ChartKind::kStacked) {
      (value < 0 ? below : above) += value;
    } else {
      below = std::min(below, value);
      above = std::max(above, value);
    }
  }
  // Rounding both ends to a step adds no more than two.
  const double step = RoundStep((above - below) / (kMostSteps - 2));
  const ChartScale scale{std::floor(below / step) * step, std::ceil(above / step) * step, step};
  return scale.most > scale.least ? scale : ChartScale{};
}

}  // namespace tarnwell::forms
