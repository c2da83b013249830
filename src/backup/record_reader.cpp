#include "backup/record_reader.h"

#include <algorithm>
#include <cstdint>

namespace tarnwell::backup {

int RecordReader::RecordsOn(Disk& disk, int number) {
  std::uint64_t records = 0;
  for (const BackupFile& file : set_.files) {
    const auto form = disk.Open(Filled(file.form, year_, number));
    const std::uint64_t size = form ? form->Size().value_or(0) : 0;
    const auto length = static_cast<std::uint64_t>(file.record_length);
    records = std::max(records, (size + length - 1) / length);
  }
  return static_cast<int>(std::min<std::uint64_t>(records, 1u << 30));
}

// The info file of a planner's year tells of whichever year was backed up last to this place.
std::vector<std::string> RecordReader::Check(Disk& disk, const DiskInfo& info) {
  const int records = RecordsOn(disk, 1);
  const bool is_of_any_year = set_.whole.empty() && info.next == 0;
  if (records >= info.position || is_of_any_year) return {};
  return {"It has " + std::to_string(records) + " of its " + std::to_string(info.position) +
          " records."};
}

// On the first disk: the files of names, and an empty file for each that the disk has.
Step RecordReader::Begin(Disk& disk, storage::Replacement& made) {
  targets_.clear();
  next_ = 0;
  report_ = {};
  for (const std::string_view name : set_.whole) {
    // Without its names a book can't be read.
    if (!disk.Has(name) && name == set_.whole.front()) return Step::kBadSource;
    if (!disk.Has(name)) continue;
    const Step step = Take(disk, std::string(name), std::string(name), made);
    if (step != Step::kDone) return step;
    report_.copied.emplace_back(name);
  }
  for (const BackupFile& file : set_.files) {
    if (!disk.Has(Filled(file.form, year_))) continue;
    const std::string live = Filled(file.live, year_);
    auto target = made.Make(live);
    if (!target) return Step::kRefused;
    targets_.push_back({&file, std::move(target)});
    report_.copied.push_back(live);
  }
  return targets_.empty() ? Step::kBadSource : Step::kDone;
}

Step RecordReader::TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) {
  if (info.disk == 1) {
    if (const Step begun = Begin(disk, made); begun != Step::kDone) return begun;
  }
  // Another backup's disk doesn't begin where the one before ended.
  const int expected = info.position - next_;
  const bool is_cut = info.next > 0 && RecordsOn(disk, info.disk) < expected;
  const bool is_foreign = info.disk > 1 && info.count > 0 && info.count != expected;
  if (expected < 0 || is_cut || is_foreign) return Step::kBadSource;
  attendant_.StartBar(info.position);
  attendant_.MoveBar(next_);
  for (Target& target : targets_) {
    const Step step = TakeRecords(disk, info, target);
    if (step != Step::kDone) return step;
  }
  next_ = info.position;
  attendant_.MoveBar(next_);
  return Step::kDone;
}

// The last disk gives all that it has; behind the position of another lies a piece of a record that
// the full disk broke off.
Step RecordReader::TakeRecords(Disk& disk, const DiskInfo& info, Target& target) {
  const auto form = disk.Open(Filled(target.file->form, year_, info.disk));
  const auto size = form ? form->Size() : std::nullopt;
  if (!size) return Step::kBadSource;
  const auto length = static_cast<std::uint64_t>(target.file->record_length);
  const auto expected = static_cast<std::uint64_t>(info.position - next_) * length;
  const std::uint64_t bytes = info.next > 0 ? std::min(*size, expected) : *size;
  const Range to{*target.made, static_cast<std::uint64_t>(next_) * length};
  return CopyBytes({*form}, to, bytes, attendant_);
}

Step RecordReader::Finish(storage::Replacement& made) {
  for (Target& target : targets_) {
    const bool is_flushed = target.made->Flush();
    if (!target.made->Close() || !is_flushed) return Step::kRefused;
  }
  for (const std::string_view name : set_.whole) made.Remove(name);
  for (const BackupFile& file : set_.files) made.Remove(Filled(file.live, year_));
  return Step::kDone;
}

}  // namespace tarnwell::backup
