#pragma once

#include <string>
#include <vector>

#include "backup/set_reader.h"

namespace tarnwell::backup {

// The files of a year, from one disk.
class PlainReader : public SetReader {
 public:
  using SetReader::SetReader;

  std::vector<std::string> Check(Disk&, const DiskInfo&) override { return {}; }
  int total(const DiskInfo&) const override { return kSteps; }
  Step TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) override;
  Step Finish(storage::Replacement& made) override;

 private:
  static constexpr int kSteps = 1000;  // of the bar
};

}  // namespace tarnwell::backup
