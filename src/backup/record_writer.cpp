#include "backup/record_writer.h"

#include <algorithm>

#include "backup/live_files.h"

namespace tarnwell::backup {
namespace {

constexpr std::uint64_t kBatch = 256u << 10;  // bytes

}  // namespace

RecordWriter::RecordWriter(const BackupSet& set, int year, storage::ProgramFolder& folder,
                           Attendant& attendant)
    : set_(set), year_(year), attendant_(attendant) {
  std::uint64_t widths = 0;
  for (const BackupFile& file : set.files) {
    const std::string name = Filled(file.live, year);
    LiveFile live = OpenLive(folder, name);
    const auto size = live.file ? live.file->Size() : std::nullopt;
    const auto length = static_cast<std::uint64_t>(file.record_length);
    widths += length;
    if (!size) {
      if (live.file) live.fault = storage::Fault::kBroken;
      if (live.fault != storage::Fault::kMissing) report_.left_out.push_back({name, live.fault});
      continue;
    }
    const auto records = static_cast<int>((*size + length - 1) / length);
    records_ = std::max(records_, records);
    report_.copied.push_back(name);
    sources_.push_back({name, length, std::move(live.file), *size, {}, nullptr});
  }
  batch_ = static_cast<int>(std::max<std::uint64_t>(kBatch / widths, 1));
}

void RecordWriter::StartDisk(Disk& disk, int number) {
  disk_ = &disk;
  first_ = next_;
  is_refused_ = false;
  for (Source& source : sources_) {
    const auto planned = std::ranges::find_if(set_.files, [&](const BackupFile& file) {
      return Filled(file.live, year_) == source.name;
    });
    source.form = Filled(planned->form, year_, number);
    source.copy = disk.Make(source.form);
    is_refused_ = is_refused_ || !source.copy;
  }
}

std::uint64_t RecordWriter::BytesOf(const Source& source, int from, int to) const {
  const auto begin = std::min(static_cast<std::uint64_t>(from) * source.length, source.size);
  return std::min(static_cast<std::uint64_t>(to) * source.length, source.size) - begin;
}

Step RecordWriter::Put(int count) {
  for (Source& source : sources_) {
    const Range from{*source.file, static_cast<std::uint64_t>(next_) * source.length};
    const Range to{*source.copy, static_cast<std::uint64_t>(next_ - first_) * source.length};
    const Step step = CopyBytes(from, to, BytesOf(source, next_, next_ + count), attendant_);
    if (step != Step::kDone) return step;
  }
  next_ += count;
  return Step::kDone;
}

// Without the piece of a record that the full disk broke off: it would have the room of others.
Step RecordWriter::Rewrite() {
  const int end = next_;
  next_ = first_;
  for (Source& source : sources_) {
    source.copy = disk_->Make(source.form);
    if (!source.copy) return Step::kRefused;
  }
  Step step = Step::kDone;
  while (next_ < end && step == Step::kDone) step = Put(std::min(batch_, end - next_));
  return step;
}

// A disk that doesn't take many records at once may take some of them.
Step RecordWriter::PutNext() {
  if (next_ >= records_) return Step::kEnd;
  if (is_refused_) return Step::kRefused;
  const int count = std::min(batch_, records_ - next_);
  Step step = Put(count);
  if (step != Step::kRefused) return step;
  step = Rewrite();
  for (int i = 0; i < count && step == Step::kDone; ++i) step = Put(1);
  return step;
}

Step RecordWriter::FinishDisk() {
  bool is_on_disk = true;
  for (Source& source : sources_) {
    if (!source.copy) continue;
    is_on_disk = source.copy->Flush() && is_on_disk;
    is_on_disk = source.copy->Close() && is_on_disk;
    source.copy = nullptr;
  }
  if (!is_on_disk || !disk_->Flush()) {
    TakeBack();
    return Step::kRefused;
  }
  for (Source& source : sources_) {
    const Step compared = next_ > first_ ? Compare(source) : Step::kDone;
    if (compared != Step::kDone) return compared;
  }
  return Step::kDone;
}

Step RecordWriter::Compare(Source& source) {
  const std::uint64_t size = BytesOf(source, first_, next_);
  const auto written = disk_->Open(source.form);
  if (!written) return Step::kDiffers;
  const std::uint64_t begin = static_cast<std::uint64_t>(first_) * source.length;
  return CompareBytes({*written}, {*source.file, begin}, size, attendant_);
}

void RecordWriter::TakeBack() {
  for (const Source& source : sources_) disk_->Remove(source.form);
  next_ = first_;
}

}  // namespace tarnwell::backup
