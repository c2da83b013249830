// What the benchmarks of windows have in common.

#pragma once

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "desktop/widgets/look.h"

namespace tarnwell::bench {

inline double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

// The median of that many runs of the work, which is told its number from 0, in milliseconds.
inline double MedianOf(int times, const std::function<void(int)>& work) {
  std::vector<double> taken;
  for (int i = 0; i < times; ++i) taken.push_back(Milliseconds([&] { work(i); }));
  std::ranges::sort(taken);
  return taken[taken.size() / 2];
}

// Their main(): the program's look, where QT_QPA_PLATFORM says, "offscreen" if nothing does. `run`
// gets the folder to work in.
inline int RunInWindows(int count, char** arguments, int (*run)(const std::string& folder)) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(count, arguments);
  desktop::ApplyLook(application);
  return run(count > 1 ? arguments[1] : ".");
}

}  // namespace tarnwell::bench
