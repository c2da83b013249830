#include "backup/restore_run.h"

namespace tarnwell::backup {

RestoreRun::RestoreRun(const BackupSet& set, int year, storage::ProgramFolder& folder,
                       Attendant& attendant)
    : set_(set),
      year_(year),
      folder_(folder),
      attendant_(attendant),
      reader_(ReaderOf(set, year, folder, attendant)) {}

std::optional<DiskInfo> RestoreRun::InfoOfPresent(int number) {
  if (attendant_.DiskPath().empty()) return std::nullopt;
  Disk disk = Present();
  const auto info = ReadInfo(disk, set_, number);
  if (!info || info->tag != set_.tag || info->disk != number) return std::nullopt;
  return info;
}

bool RestoreRun::Find() {
  if (set_.kind == SetKind::kPlain) {
    first_.disk = 1;
    return true;
  }
  const auto info = InfoOfPresent(1);
  Disk disk = Present();
  // Without its table no vehicle can be restored.
  if (!info || (set_.kind == SetKind::kVehicles && !disk.HoldsBytes("CarMnt1.Ab1"))) return false;
  first_ = *info;
  return true;
}

std::vector<std::string> RestoreRun::Check() {
  if (set_.kind == SetKind::kPlain) return {};
  Disk disk = Present();
  std::vector<std::string> wrong;
  if (!first_.finished) wrong.emplace_back("It was never finished.");
  const std::vector<std::string> found = reader_->Check(disk, first_);
  wrong.insert(wrong.end(), found.begin(), found.end());
  return wrong;
}

RestoreEnd RestoreRun::Run() {
  attendant_.StartBar(reader_->total(first_));
  storage::Replacement made(folder_, TitleOf(set_, year_));
  if (const auto begun = made.Begin(); !begun) {
    fault_ = begun.fault();
    return RestoreEnd::kNoRoom;
  }
  const RestoreEnd taken = TakeAll(made);
  if (taken != RestoreEnd::kComplete) return taken;
  if (const Step finished = reader_->Finish(made); finished != Step::kDone) {
    return Failed(finished);
  }
  if (!attendant_.GoOn()) return RestoreEnd::kStopped;
  if (const auto committed = made.Commit(); !committed) {
    fault_ = committed.fault();
    return made.is_stuck() ? RestoreEnd::kStuck : RestoreEnd::kNoRoom;
  }
  return RestoreEnd::kComplete;
}

RestoreEnd RestoreRun::TakeAll(storage::Replacement& made) {
  for (DiskInfo info = first_;;) {
    Disk disk = Present();
    const Step step = reader_->TakeDisk(disk, info, made);
    if (step != Step::kDone && (step != Step::kBadSource || info.disk == 1)) return Failed(step);
    int wanted = info.disk;
    if (step == Step::kBadSource) {
      attendant_.TellUnreadableDisk();
    } else if (info.next > info.disk) {
      wanted = info.disk + 1;
    } else {
      return RestoreEnd::kComplete;
    }
    const auto next = AskForDisk(wanted);
    if (!next) return RestoreEnd::kCancelled;
    info = *next;
  }
}

std::optional<DiskInfo> RestoreRun::AskForDisk(int number) {
  while (attendant_.AskForDisk(number)) {
    if (const auto info = InfoOfPresent(number)) return info;
  }
  return std::nullopt;
}

RestoreEnd RestoreRun::Failed(Step step) {
  if (step == Step::kStopped) return RestoreEnd::kStopped;
  if (step == Step::kBadSource) return RestoreEnd::kUnreadable;
  fault_ = folder_.files().fault();
  if (fault_ == storage::Fault::kNone) fault_ = storage::Fault::kBroken;
  return RestoreEnd::kNoRoom;
}

}  // namespace tarnwell::backup
