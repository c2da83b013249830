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

const char* Verdict(double measured, double aim) {
  if (measured <= aim) return "";
  return Stands(measured, aim) ? "  missed" : "  missed by more than a third";
}

bool Tell(const char* title, double measured, double aim, const char* unit) {
  std::printf("%-58s %10.3f %s, aim %g%s\n", title, measured, unit, aim, Verdict(measured, aim));
  return Stands(measured, aim);
}

bool TellWorst(const char* title, std::vector<double> measured, double aim, const char* unit) {
  const double worst = *std::ranges::max_element(measured);
  std::printf("%-58s %10.3f %s median, %.3f %s worst of %zu, aim %g%s\n", title, Median(measured),
              unit, worst, unit, measured.size(), aim, Verdict(worst, aim));
  return Stands(worst, aim);
}

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
    is_good = is_good && Stands(row.ratio, row.aim);
    std::printf("%-58s %10.3f %10.3f %7.2f %6.2f%s\n", row.title.c_str(), row.ours, row.bare,
                row.ratio, row.aim, Verdict(row.ratio, row.aim));
  }
  return is_good;
}

}  // namespace tarnwell::bench
