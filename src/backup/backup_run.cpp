#include "backup/backup_run.h"

#include <algorithm>

#include "backup/document_writer.h"
#include "backup/live_files.h"
#include "backup/record_writer.h"
#include "backup/vehicle_writer.h"

namespace tarnwell::backup {
namespace {

constexpr int kPlainSteps = 1000;  // of the bar

}  // namespace

std::unique_ptr<SetWriter> WriterOf(const BackupSet& set, int year, storage::ProgramFolder& folder,
                                    Attendant& attendant) {
  switch (set.kind) {
    case SetKind::kDocuments:
      return std::make_unique<DocumentWriter>(folder, attendant);
    case SetKind::kRecords:
      return std::make_unique<RecordWriter>(set, year, folder, attendant);
    case SetKind::kVehicles:
      return std::make_unique<VehicleWriter>(set, folder, attendant);
    case SetKind::kPlain:
      break;
  }
  return nullptr;
}

BackupRun::BackupRun(const BackupSet& set, int year, storage::ProgramFolder& folder,
                     Attendant& attendant)
    : set_(set), year_(year), folder_(folder), attendant_(attendant) {}

BackupEnd BackupRun::Run() {
  disk_ = std::make_unique<Disk>(folder_.files(), attendant_.DiskPath());
  const BackupEnd end = set_.kind == SetKind::kPlain ? RunPlain() : RunSpanned();
  if (end != BackupEnd::kComplete) is_cleared_ = TakeOffDisk();
  if (!writer_) return end;
  const Report& written = writer_->report();
  report_.copied.insert(report_.copied.end(), written.copied.begin(), written.copied.end());
  report_.left_out.insert(report_.left_out.end(), written.left_out.begin(), written.left_out.end());
  return end;
}

BackupEnd BackupRun::RunSpanned() {
  writer_ = WriterOf(set_, year_, folder_, attendant_);
  attendant_.StartBar(writer_->total());
  if (!disk_->IsWritable() || !StartDisk()) return BackupEnd::kNotWritable;
  for (;;) {
    if (const auto end = FillDisk()) return *end;
    do {
      if (!ChangeDisk()) return BackupEnd::kCancelled;
    } while (!StartDisk());
  }
}

// The set's old files go, and a new info file says that this disk isn't finished yet.
bool BackupRun::StartDisk() {
  attendant_.ShowDeleting();
  const DiskInfo unfinished{std::string(set_.tag), number_};
  if (number_ == 1) report_ = {};
  if (!ClearDisk() || !MakeInfo(*disk_, set_, unfinished) || !CopyNameLists()) {
    disk_->RemovePut();
    return false;
  }
  present_ = unfinished;
  attendant_.ShowDisk(number_);
  writer_->StartDisk(*disk_, number_);
  return true;
}

// First what calls the old set whole.
bool BackupRun::ClearDisk() {
  return disk_->RemoveAll([&](std::string_view name) { return IsInfo(set_, name); }) &&
         disk_->RemoveAll([&](std::string_view name) { return IsForm(set_, year_, name); });
}

// They lie on the first disk under their own names.
bool BackupRun::CopyNameLists() {
  return number_ != 1 || std::ranges::all_of(set_.whole, [this](std::string_view name) {
           const Step step = CopyWhole(name, name);
           return step != Step::kRefused && step != Step::kDiffers;
         });
}

Step BackupRun::CopyWhole(std::string_view name, std::string_view form) {
  const auto source = OpenLive(folder_, name);
  if (!source.file) {
    const bool is_missing = source.fault == storage::Fault::kMissing;
    if (!is_missing) report_.left_out.push_back({std::string(name), source.fault});
    return disk_->Remove(form) ? Step::kBadSource : Step::kRefused;
  }
  const auto copy = disk_->Make(form);
  if (!copy) return Step::kRefused;
  Step step = CopyFile(*source.file, *copy, attendant_);
  if (step == Step::kDone) {
    const auto written = disk_->Open(form);
    step = written ? CompareFiles(*written, *source.file, attendant_) : Step::kRefused;
  }
  if (step == Step::kDone) {
    report_.copied.emplace_back(name);
  } else {
    disk_->Remove(form);
  }
  if (step == Step::kBadSource) {
    report_.left_out.push_back({std::string(name), storage::Fault::kBroken});
  }
  return step;
}

// None when another disk is needed.
std::optional<BackupEnd> BackupRun::FillDisk() {
  for (;;) {
    if (!attendant_.GoOn()) return BackupEnd::kStopped;
    switch (writer_->PutNext()) {
      case Step::kDone:
        attendant_.MoveBar(writer_->done());
        break;
      case Step::kEnd:
        return EndDisk(true);
      case Step::kRefused:
        return EndDisk(false);
      case Step::kStopped:
        return BackupEnd::kStopped;
      case Step::kBadSource:
        return BackupEnd::kBadSource;
      case Step::kDiffers:
        return BackupEnd::kDiffers;
    }
  }
}

std::optional<BackupEnd> BackupRun::EndDisk(bool is_last) {
  // What a restore begins with has to be on the first disk.
  if (writer_->position() < 0) return BackupEnd::kNotWritable;
  const Step finished = writer_->FinishDisk();
  if (finished == Step::kDiffers) return BackupEnd::kDiffers;
  if (finished == Step::kBadSource) return BackupEnd::kBadSource;
  if (finished == Step::kStopped) return BackupEnd::kStopped;
  is_last = is_last && finished == Step::kDone;
  filled_ = {std::string(set_.tag),     number_,
             is_last ? 0 : number_ + 1, std::max(writer_->position(), 0),
             writer_->count(),          true};
  if (WriteInfo(*disk_, set_, filled_)) {
    present_ = filled_;
    if (is_last) return BackupEnd::kComplete;
    ++number_;
    return std::nullopt;
  }
  // The disk can't say what is on it, or it is gone: all of it goes to another of its number.
  writer_->TakeBack();
  filled_ = {};
  return std::nullopt;
}

// False when the person gives up.
bool BackupRun::ChangeDisk() {
  while (attendant_.AskForDisk(number_)) {
    const std::string path = attendant_.DiskPath();
    if (path.empty()) continue;
    auto disk = std::make_unique<Disk>(folder_.files(), path);
    if (IsSameDisk(*disk)) continue;
    disk_ = std::move(disk);
    return true;
  }
  return false;
}

bool BackupRun::IsSameDisk(Disk& disk) {
  const auto info = filled_.disk == 0 ? std::nullopt : ReadInfo(disk, set_, filled_.disk);
  return info && info->disk == filled_.disk;
}

// Never from a disk that has come into its place meanwhile.
bool BackupRun::TakeOffDisk() {
  const std::string path = attendant_.DiskPath();
  if (path.empty()) return false;
  if (present_.disk > 0) {
    Disk present(folder_.files(), path);
    if (ReadInfo(present, set_, present_.disk) != present_) return false;
  }
  return disk_->RemovePut();
}

BackupEnd BackupRun::RunPlain() {
  attendant_.ShowDeleting();
  attendant_.StartBar(kPlainSteps);
  for (std::size_t i = 0; i < set_.files.size();) {
    const std::string form = Filled(set_.files[i].form, year_);
    disk_->Remove(form);
    attendant_.ShowDisk(1);
    if (!attendant_.GoOn()) return BackupEnd::kStopped;
    const Step step = CopyWhole(Filled(set_.files[i].live, year_), form);
    if (step == Step::kStopped) return BackupEnd::kStopped;
    if (report_.is_incomplete()) return BackupEnd::kBadSource;
    const bool is_optional = i > 0 && step == Step::kBadSource;
    if (step == Step::kDone || is_optional) {
      ++i;
      attendant_.MoveBar(static_cast<int>(i) * kPlainSteps / static_cast<int>(set_.files.size()));
      continue;
    }
    if (!ChangeDisk()) return BackupEnd::kCancelled;
    report_ = {};
    i = 0;  // both files belong on one disk
  }
  return disk_->Flush() ? BackupEnd::kComplete : BackupEnd::kDiffers;
}

}  // namespace tarnwell::backup
