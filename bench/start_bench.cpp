// From the start of the process to its first painted window, against an empty Qt main window: time
// and peak memory. Runs where QT_QPA_PLATFORM says, on a screen in memory if it says nothing.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "ratio_table.h"

namespace tarnwell::bench {
namespace {

// Starts the program and waits for its sign that a window is painted. Its peak memory in KiB.
long RunToFirstPaint(const std::string& program, const std::string& argument) {
  int ends[2];
  Check(::pipe(ends) == 0, "pipe");
  const pid_t child = ::fork();
  Check(child >= 0, "fork");
  if (child == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[0]);
    ::execl(program.c_str(), program.c_str(), argument.c_str(), nullptr);
    ::_exit(127);
  }
  ::close(ends[1]);
  char sign = 0;
  const bool painted = ::read(ends[0], &sign, 1) == 1;
  ::close(ends[0]);
  int status = 0;
  struct rusage usage;
  Check(::wait4(child, &status, 0, &usage) == child && painted, program.c_str());
  return usage.ru_maxrss;
}

long Median(std::vector<long> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

bool ReportMemory(const std::vector<long>& ours, const std::vector<long>& bare) {
  constexpr double kAim = 1.5;
  const double ratio = static_cast<double>(Median(ours)) / static_cast<double>(Median(bare));
  std::printf("Peak memory: %ld KiB against %ld KiB, ratio %.2f, aim %.2f%s\n", Median(ours),
              Median(bare), ratio, kAim, Verdict(ratio, kAim));
  return Stands(ratio, kAim);
}

int Run(const std::filesystem::path& programs) {
  ::setenv("QT_QPA_PLATFORM", "offscreen:configfile=" TARNWELL_SCREEN, 0);
  const BenchFolder folder(std::filesystem::temp_directory_path());
  std::vector<long> ours;
  std::vector<long> bare;
  RatioTable table;
  table.Measure(
      "Process start to first painted window", 2, 15,
      [&] { ours.push_back(RunToFirstPaint(programs / "started_program", folder.path())); },
      [&] { bare.push_back(RunToFirstPaint(programs / "empty_window", "")); });
  const bool is_fast = table.Print();
  return ReportMemory(ours, bare) && is_fast ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int, char* arguments[]) {
  return tarnwell::bench::Run(std::filesystem::absolute(arguments[0]).parent_path());
}
