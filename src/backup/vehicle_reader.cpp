#include "backup/vehicle_reader.h"

#include <algorithm>
#include <optional>

#include "backup/live_files.h"
#include "backup/vehicle_lines.h"
#include "backup/vehicle_writer.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/vehicle_slots.h"

namespace tarnwell::backup {
namespace {

namespace file_names = storage::file_names;

constexpr std::string_view kTable = "CarMnt1.Ab1";

std::optional<std::string> ReadAll(Disk& disk, std::string_view name) {
  const auto file = disk.Open(name);
  const auto size = file ? file->Size() : std::nullopt;
  if (!size || *size > storage::ProgramFolder::kMaxWholeFile) return std::nullopt;
  std::string content(static_cast<std::size_t>(*size), '\0');
  if (file->ReadAt(0, content) != static_cast<std::ptrdiff_t>(content.size())) return std::nullopt;
  return content;
}

int WholeLines(std::string content) {
  storage::SequentialReader lines(std::move(content));
  int count = 0;
  while (!lines.AtEnd()) count += ReadLine(lines.Next()).is_whole ? 1 : 0;
  return count;
}

Step Put(storage::Replacement& made, std::string_view live, std::string_view content) {
  const auto file = made.Make(live);
  const bool is_written = file && file->WriteAt(0, content) && file->Flush();
  return is_written && file->Close() ? Step::kDone : Step::kRefused;
}

}  // namespace

// A set on one disk can be counted.
std::vector<std::string> VehicleReader::Check(Disk& disk, const DiskInfo& info) {
  std::vector<std::string> wrong;
  for (const BackupFile& file : set_.files) {
    if (info.next > 0) break;
    const auto content = ReadAll(disk, file.form);
    const int lines = content ? WholeLines(*content) : 0;
    if (lines >= info.count) continue;
    wrong.push_back(std::string(file.form) + " has the lines of " + std::to_string(lines) + " of " +
                    std::to_string(info.count) + " vehicles.");
  }
  return wrong;
}

int VehicleReader::total(const DiskInfo& first) const {
  return std::min(first.count, vehicles::kMostSlots) * static_cast<int>(set_.files.size());
}

VehicleReader::Span VehicleReader::SlotsOf(int kind, int before, int position) const {
  const int base = kind * slots_;
  return {std::clamp(before - base, 0, slots_) + 1, std::clamp(position - base, 0, slots_) + 1};
}

int VehicleReader::PositionOf(const DiskInfo& info) const {
  return info.next > 0 ? info.position : slots_ * static_cast<int>(set_.files.size());
}

Step VehicleReader::TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) {
  if (info.disk == 1) {
    report_ = {};
    missing_.clear();
    next_ = 0;
    slots_ = std::min(info.count, vehicles::kMostSlots);
    if (const Step table = TakeTable(disk, made); table != Step::kDone) return table;
  }
  // Another backup's disk has another number of vehicles, or ends before this one begins.
  if (info.count != slots_ || PositionOf(info) < next_) return Step::kBadSource;
  const Report before = report_;
  for (int kind = 0; kind < static_cast<int>(set_.files.size()); ++kind) {
    const Step step = TakeLines(disk, kind, info, made);
    if (step != Step::kDone) report_ = before;
    if (step != Step::kDone) return step;
  }
  next_ = PositionOf(info);
  return Step::kDone;
}

// Records behind the last that holds something are none.
Step VehicleReader::TakeTable(Disk& disk, storage::Replacement& made) {
  auto table = ReadAll(disk, kTable);
  if (!table || table->empty()) return Step::kBadSource;
  const auto count = static_cast<std::size_t>(slots_);
  table->resize(std::min(table->size(), count * vehicles::kSlotRecordLength));
  while (!table->empty()) {
    const std::size_t last =
        (table->size() - 1) / vehicles::kSlotRecordLength * vehicles::kSlotRecordLength;
    const bool is_blank =
        table->find_first_not_of(std::string_view("\0 ", 2), last) == std::string::npos;
    if (!is_blank) break;
    table->resize(last);
  }
  report_.copied.emplace_back(file_names::kVehicleSlots);
  return Put(made, file_names::kVehicleSlots, *table);
}

Step VehicleReader::TakeLines(Disk& disk, int kind, const DiskInfo& info,
                              storage::Replacement& made) {
  const Span slots = SlotsOf(kind, next_, PositionOf(info));
  if (slots.first >= slots.end) return Step::kDone;
  const BackupFile& file = set_.files[static_cast<std::size_t>(kind)];
  auto content = ReadAll(disk, file.form);
  if (!content && disk.Has(file.form)) return Step::kBadSource;
  storage::SequentialReader lines(content ? std::move(*content) : std::string());
  for (int slot = slots.first; slot < slots.end; ++slot) {
    const std::string live = Filled(file.live, year_, slot);
    const std::string line = lines.Next();
    if (!ReadLine(line).is_whole) {
      if (info.next > 0 || info.disk > 1) return Step::kBadSource;
      missing_.insert(text::UpperCase(live));
      report_.left_out.push_back({live, storage::Fault::kMissing});
      continue;
    }
    if (const Step step = TakeLine(live, line, made); step != Step::kDone) return step;
    attendant_.MoveBar(kind * slots_ + slot);
    if (!attendant_.GoOn()) return Step::kStopped;
  }
  return Step::kDone;
}

Step VehicleReader::TakeLine(const std::string& live, std::string_view line,
                             storage::Replacement& made) {
  const VehicleLine values = ReadLine(line);
  if (values.is_cut) report_.left_out.push_back({live, storage::Fault::kTooLarge});
  if (values.values.empty()) return Step::kDone;  // the slot has no such file
  report_.copied.push_back(live);
  return Put(made, live, ContentOf(values));
}

// Files of slots beyond both tables belong to no vehicle and stay.
Step VehicleReader::Finish(storage::Replacement& made) {
  const int slots = std::max(slots_, SlotCount(folder_));
  std::set<std::string> of_set;
  for (int slot = 1; slot <= slots; ++slot) {
    for (const BackupFile& file : set_.files) {
      of_set.insert(text::UpperCase(Filled(file.live, year_, slot)));
    }
  }
  for (const std::string& name : LiveFiles(folder_, IsVehicleFile)) {
    const std::string folded = text::UpperCase(name);
    if (of_set.contains(folded)) {
      if (!missing_.contains(folded)) made.Remove(name);
    } else if (!text::EqualIgnoringCase(name, file_names::kVehicleSlots)) {
      report_.left_out.push_back({name});
    }
  }
  made.Remove(file_names::kVehicleSlots);
  return Step::kDone;
}

}  // namespace tarnwell::backup
