// A restore of one set, disk by disk.

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_sets.h"
#include "backup/disk_info.h"
#include "backup/report.h"
#include "backup/set_reader.h"
#include "storage/program_folder.h"

namespace tarnwell::backup {

enum class RestoreEnd {
  kComplete,
  kCancelled,   // at the question for a disk
  kStopped,     // while it ran
  kUnreadable,  // the first disk can't be read to its end
  kNoRoom,      // the program's own folder can't take the files; fault() says why
  kStuck,       // see storage::Replacement: nothing may be written any more
};

// Of every end but kComplete and kStuck the program's files are as they were.
class RestoreRun {
 public:
  RestoreRun(const BackupSet& set, int year, storage::ProgramFolder& folder, Attendant& attendant);

  // Whether the set's first disk is in its place. A year's files count as found.
  bool Find();
  // What is wrong with what can be seen of the set, a line each.
  std::vector<std::string> Check();
  // After Find.
  RestoreEnd Run();
  storage::Fault fault() const { return fault_; }
  const Report& report() const { return reader_->report(); }

 private:
  Disk Present() { return {folder_.files(), attendant_.DiskPath()}; }
  std::optional<DiskInfo> InfoOfPresent(int number);
  RestoreEnd TakeAll(storage::Replacement& made);
  // None when the person gives up.
  std::optional<DiskInfo> AskForDisk(int number);
  RestoreEnd Failed(Step step);

  const BackupSet& set_;
  int year_;
  storage::ProgramFolder& folder_;
  Attendant& attendant_;
  std::unique_ptr<SetReader> reader_;
  DiskInfo first_;
  storage::Fault fault_ = storage::Fault::kNone;
};

}  // namespace tarnwell::backup
