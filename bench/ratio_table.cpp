#include "ratio_table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace tarnwell::bench {
namespace {

double Milliseconds(const RatioTable::Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

void RatioTable::Measure(std::string title, double aim, int rounds, const Work& ours,
                         const Work& bare) {
  bare();
  ours();
  std::vector<double> our_times;
  std::vector<double> bare_times;
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    const bool is_ours_first = round % 2 == 0;  // neither always finds the warmer machine
    if (is_ours_first) our_times.push_back(Milliseconds(ours));
    bare_times.push_back(Milliseconds(bare));
    if (!is_ours_first) our_times.push_back(Milliseconds(ours));
    ratios.push_back(our_times.back() / bare_times.back());
  }
  rows_.push_back(
      {std::move(title), Median(our_times), Median(bare_times), Median(std::move(ratios)), aim});
}

bool RatioTable::Print() const {
  std::printf("%-58s %10s %10s %7s %6s\n", "", "ours ms", "bare ms", "ratio", "aim");
  bool is_good = true;
  for (const Row& row : rows_) {
    const bool is_met = row.ratio <= row.aim;
    is_good = is_good && is_met;
    std::printf("%-58s %10.3f %10.3f %7.2f %6.2f%s\n", row.title.c_str(), row.ours, row.bare,
                row.ratio, row.aim, is_met ? "" : "  missed");
  }
  return is_good;
}

}  // namespace tarnwell::bench
