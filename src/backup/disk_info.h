// The info file of a disk: which set it belongs to and how far it goes.
// docs/formats/backup-sets.md has the layout.

#pragma once

#include <optional>
#include <string>

#include "backup/backup_sets.h"
#include "backup/disk.h"

namespace tarnwell::backup {

struct DiskInfo {
  std::string tag;
  int disk = 0;
  int next = 0;      // 0 where the set ends here
  int position = 0;  // in the set, at which this disk ends
  int count = 0;     // items on this disk
  bool finished = false;

  friend bool operator==(const DiskInfo&, const DiskInfo&) = default;
};

std::string InfoBytes(const DiskInfo& info, int record_length);
DiskInfo InfoOf(std::string_view bytes, int record_length);

// Of the disk that should have that number; none where the file isn't there or can't be read.
std::optional<DiskInfo> ReadInfo(Disk& disk, const BackupSet& set, int number);
// All of the file at once, flushed. It always has the same size, so that a disk that is full by now
// still takes it.
bool WriteInfo(Disk& disk, const BackupSet& set, const DiskInfo& info);
// In the place of an older one, which may be larger or a link.
bool MakeInfo(Disk& disk, const BackupSet& set, const DiskInfo& info);

}  // namespace tarnwell::backup
