// What a set puts on its disks, piece by piece in a fixed order.

#pragma once

#include <memory>

#include "backup/attendant.h"
#include "backup/backup_sets.h"
#include "backup/copying.h"
#include "backup/disk.h"
#include "backup/report.h"
#include "storage/program_folder.h"

namespace tarnwell::backup {

// The program's files aren't touched.
class SetWriter {
 public:
  virtual ~SetWriter() = default;

  // The maximum of the bar, and where it stands now.
  virtual int total() const = 0;
  virtual int done() const = 0;
  // A disk takes over from the one before; it has none of the set's files.
  virtual void StartDisk(Disk& disk, int number) = 0;
  // The next piece, or more than one: kDone, kEnd behind the last, kRefused when the disk takes no
  // more, kDiffers, kStopped. A file that can't be read is left out, and the report says so.
  virtual Step PutNext() = 0;
  // Behind the last piece that a disk takes: all of them are on it and read back as they were
  // written. kRefused takes them back.
  virtual Step FinishDisk() = 0;
  // All that this disk got is to be put on another.
  virtual void TakeBack() = 0;
  // Of the last piece put.
  virtual int position() const = 0;
  // Items on this disk.
  virtual int count() const = 0;

  const Report& report() const { return report_; }

 protected:
  Report report_;
};

std::unique_ptr<SetWriter> WriterOf(const BackupSet& set, int year, storage::ProgramFolder& folder,
                                    Attendant& attendant);

}  // namespace tarnwell::backup
