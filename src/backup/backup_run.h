// A backup of one set, over as many disks as it needs.

#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "backup/attendant.h"
#include "backup/backup_sets.h"
#include "backup/disk.h"
#include "backup/disk_info.h"
#include "backup/report.h"
#include "backup/set_writer.h"
#include "storage/program_folder.h"

namespace tarnwell::backup {

enum class BackupEnd {
  kComplete,     // flushed, read back and compared with what it was made of
  kNotWritable,  // the first disk takes nothing
  kCancelled,    // at the question for a disk
  kStopped,      // while it ran
  kBadSource,    // a file of the program can't be read to its end
  kDiffers,      // the disk doesn't give back what was written
};

// The program's files aren't touched.
class BackupRun {
 public:
  BackupRun(const BackupSet& set, int year, storage::ProgramFolder& folder, Attendant& attendant);

  BackupEnd Run();
  // After another end than kComplete: what this run had put on the disk in its place is gone again.
  // Disks before that one are out of reach.
  bool is_cleared() const { return is_cleared_; }
  const Report& report() const { return report_; }

 private:
  BackupEnd RunSpanned();
  BackupEnd RunPlain();
  bool StartDisk();
  bool ClearDisk();
  Step CopyWhole(std::string_view name, std::string_view form);
  bool CopyNameLists();
  std::optional<BackupEnd> FillDisk();
  std::optional<BackupEnd> EndDisk(bool is_last);
  bool ChangeDisk();
  bool IsSameDisk(Disk& disk);
  bool TakeOffDisk();

  const BackupSet& set_;
  int year_;
  storage::ProgramFolder& folder_;
  Attendant& attendant_;
  std::unique_ptr<SetWriter> writer_;
  std::unique_ptr<Disk> disk_;
  int number_ = 1;    // of the disk
  DiskInfo filled_;   // of the disk before; number 0 for none
  DiskInfo present_;  // as this run wrote it last
  bool is_cleared_ = false;
  Report report_;
};

}  // namespace tarnwell::backup
