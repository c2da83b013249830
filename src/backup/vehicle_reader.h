#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "backup/set_reader.h"

namespace tarnwell::backup {

class VehicleReader : public SetReader {
 public:
  using SetReader::SetReader;

  std::vector<std::string> Check(Disk& disk, const DiskInfo& info) override;
  int total(const DiskInfo& first) const override;
  Step TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) override;
  Step Finish(storage::Replacement& made) override;

 private:
  struct Span {
    int first;  // slot, from 1
    int end;    // behind the last
  };
  // The slots whose lines of that kind lie between two positions.
  Span SlotsOf(int kind, int before, int position) const;
  int PositionOf(const DiskInfo& info) const;
  Step TakeTable(Disk& disk, storage::Replacement& made);
  Step TakeLines(Disk& disk, int kind, const DiskInfo& info, storage::Replacement& made);
  Step TakeLine(const std::string& live, std::string_view line, storage::Replacement& made);

  int slots_ = 0;
  int next_ = 0;                   // position at which the disks before ended
  std::set<std::string> missing_;  // files whose lines aren't there; they stay as they are
};

}  // namespace tarnwell::backup
