// A chart as plain data, for the screen and for paper.

#pragma once

#include <string>
#include <vector>

namespace tarnwell::forms {

enum class ChartKind {
  kBar,
  kPie,
  kStacked,  // one bar, its points above each other
};

struct ChartPoint {
  std::string label;
  double value = 0;
  bool apart = false;  // not one of the others, such as what is left of them all

  friend bool operator==(const ChartPoint&, const ChartPoint&) = default;
};

struct ChartPicture {
  static constexpr int kNone = -1;

  std::vector<ChartPoint> points;
  ChartKind kind = ChartKind::kBar;
  bool horizontal = false;  // bars lie
  int highlight = kNone;    // the point that stands out

  friend bool operator==(const ChartPicture&, const ChartPicture&) = default;
};

// "$12,345", at an axis of amounts.
std::string ChartAmount(double value);

// Of each point, counted from 0 to 1: its part of all amounts, where one below zero counts with its
// size. All 0 where there are none.
std::vector<double> ChartShares(const ChartPicture& picture);
// "12.50%", behind a minus sign where the point lies below zero.
std::string ChartPercent(const ChartPoint& point, double share);

// Where an axis of amounts begins and ends, and the distance of its marks. 0 is on it and at a
// mark.
struct ChartScale {
  double least = 0;
  double most = 1;
  double step = 1;
};
// Holds all bars of the picture, with no more than ten steps.
ChartScale ScaleOf(const ChartPicture& picture);

}  // namespace tarnwell::forms
