// Our work against the bare system calls for the same bytes, in the same run.

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarnwell::bench {

// Two machines, and two runs on one, differ by less than this beyond an aim: a figure stands that
// is no more than a third above it.
inline constexpr double kTolerance = 4.0 / 3;
inline bool Stands(double measured, double aim) { return measured <= aim * kTolerance; }
// What is printed behind a figure: nothing, that it misses its aim, or that it doesn't stand.
const char* Verdict(double measured, double aim);

// Both print a figure beside its aim, and give whether it stands. The second prints the median of
// several and the worst, which is held to the aim.
bool Tell(const char* title, double measured, double aim, const char* unit = "ms");
bool TellWorst(const char* title, std::vector<double> measured, double aim,
               const char* unit = "ms");

class RatioTable {
 public:
  using Work = std::function<void()>;

  // Runs both pieces of work once to warm up and then in turns, `rounds` times. The row's ratio is
  // the median of the rounds' ratios. What stands in `aim` is the most the ratio should be.
  void Measure(std::string title, double aim, int rounds, const Work& ours, const Work& bare);

  // Prints the table; false when a ratio doesn't stand.
  bool Print() const;

 private:
  struct Row {
    std::string title;
    double ours;  // milliseconds, median
    double bare;
    double ratio;
    double aim;
  };
  std::vector<Row> rows_;
};

}  // namespace tarnwell::bench
