// What every benchmark begins with: a folder to work in, and a check that the work was done.

#pragma once

#include <stdlib.h>
#include <sys/types.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarnwell::bench {

// The bare side must really have done its work, else the ratio means nothing.
// Takes a bool or an outcome.
template <typename Result>
void Check(const Result& worked, const char* what) {
  if (static_cast<bool>(worked)) return;
  std::perror(what);
  std::exit(2);
}

inline bool IsWhole(ssize_t count, std::size_t size) { return count == static_cast<ssize_t>(size); }

// An empty folder in `parent`, removed with all in it at the end.
class BenchFolder {
 public:
  explicit BenchFolder(const std::string& parent) : path_(parent + "/tarnwell-bench-XXXXXX") {
    Check(::mkdtemp(path_.data()) != nullptr, "make a folder");
  }
  ~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace tarnwell::bench
