#include "backup/plain_reader.h"

namespace tarnwell::backup {

// Only the first file has to be there.
Step PlainReader::TakeDisk(Disk& disk, const DiskInfo&, storage::Replacement& made) {
  report_ = {};
  const int count = static_cast<int>(set_.files.size());
  for (int i = 0; i < count; ++i) {
    const BackupFile& file = set_.files[static_cast<std::size_t>(i)];
    const std::string form = Filled(file.form, year_);
    if (i > 0 && !disk.Has(form)) continue;
    const std::string live = Filled(file.live, year_);
    if (const Step step = Take(disk, form, live, made); step != Step::kDone) return step;
    report_.copied.push_back(live);
    attendant_.MoveBar((i + 1) * kSteps / count);
    if (!attendant_.GoOn()) return Step::kStopped;
  }
  return Step::kDone;
}

Step PlainReader::Finish(storage::Replacement& made) {
  for (const BackupFile& file : set_.files) made.Remove(Filled(file.live, year_));
  return Step::kDone;
}

}  // namespace tarnwell::backup
