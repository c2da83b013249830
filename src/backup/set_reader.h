// What a set's disks give back. All of it goes to a replacement, which alone touches the program's
// files.

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_sets.h"
#include "backup/copying.h"
#include "backup/disk.h"
#include "backup/disk_info.h"
#include "backup/report.h"
#include "storage/program_folder.h"
#include "storage/replacement.h"

namespace tarnwell::backup {

class SetReader {
 public:
  SetReader(const BackupSet& set, int year, storage::ProgramFolder& folder, Attendant& attendant)
      : set_(set), year_(year), folder_(folder), attendant_(attendant) {}
  virtual ~SetReader() = default;

  // What is wrong with the first disk, a line each; nothing is changed.
  virtual std::vector<std::string> Check(Disk& disk, const DiskInfo& info) = 0;
  // The maximum of the bar, known after the first disk's info.
  virtual int total(const DiskInfo& first) const = 0;
  // Takes what the disk holds: kDone, kBadSource when it can't be read as the info says, kRefused
  // when the program's own folder takes no more, kStopped. It can be repeated.
  virtual Step TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) = 0;
  // Behind the last disk: brings what was taken to the disk and says which files go.
  virtual Step Finish(storage::Replacement& made) = 0;

  const Report& report() const { return report_; }

 protected:
  // A whole file; kBadSource where there is none.
  Step Take(Disk& disk, const std::string& form, const std::string& live,
            storage::Replacement& made);

  const BackupSet& set_;
  const int year_;
  storage::ProgramFolder& folder_;
  Attendant& attendant_;
  Report report_;
};

std::unique_ptr<SetReader> ReaderOf(const BackupSet& set, int year, storage::ProgramFolder& folder,
                                    Attendant& attendant);

}  // namespace tarnwell::backup
