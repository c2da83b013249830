#pragma once

#include <string>
#include <vector>

#include "storage/fault.h"

namespace tarnwell::backup {

// What became of the files of a set.
struct Report {
  struct LeftOut {
    std::string file;
    // kNone for one that belongs to no list of the set, and stays as it is.
    storage::Fault fault = storage::Fault::kNone;
  };
  std::vector<std::string> copied;
  std::vector<LeftOut> left_out;

  // A file that belongs to the set couldn't be read.
  bool is_incomplete() const {
    for (const LeftOut& file : left_out) {
      if (file.fault != storage::Fault::kNone) return true;
    }
    return false;
  }
};

}  // namespace tarnwell::backup
