// Our work against the bare system calls for the same bytes, in the same run.

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarnwell::bench {

class RatioTable {
 public:
  using Work = std::function<void()>;

  // Runs both pieces of work once to warm up and then in turns, `rounds` times. The row's ratio is
  // the median of the rounds' ratios. What stands in `aim` is the most the ratio should be.
  void Measure(std::string title, double aim, int rounds, const Work& ours, const Work& bare);

  // Prints the table; false when a ratio is above its aim.
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
