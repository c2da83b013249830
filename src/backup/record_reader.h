#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backup/set_reader.h"

namespace tarnwell::backup {

class RecordReader : public SetReader {
 public:
  using SetReader::SetReader;

  std::vector<std::string> Check(Disk& disk, const DiskInfo& info) override;
  int total(const DiskInfo& first) const override { return first.position; }
  Step TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) override;
  Step Finish(storage::Replacement& made) override;

 private:
  struct Target {
    const BackupFile* file;
    std::unique_ptr<storage::File> made;
  };
  // Records that the disk's files hold, the longest of them.
  int RecordsOn(Disk& disk, int number);
  Step Begin(Disk& disk, storage::Replacement& made);
  Step TakeRecords(Disk& disk, const DiskInfo& info, Target& target);

  std::vector<Target> targets_;
  int next_ = 0;  // records that the disks before gave
};

}  // namespace tarnwell::backup
