#include "backup/vehicle_writer.h"

#include <algorithm>

#include "backup/live_files.h"
#include "backup/vehicle_lines.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/vehicle_slots.h"

namespace tarnwell::backup {
namespace {

namespace file_names = storage::file_names;

std::string Written(std::string_view line) {
  storage::SequentialWriter writer;
  writer.WriteText(line);
  return writer.content();
}

}  // namespace

bool IsVehicleFile(std::string_view name) {
  constexpr std::string_view kCar = "CAR";
  constexpr std::string_view kExtension = ".FIL";
  const std::string folded = text::UpperCase(name);
  if (folded == text::UpperCase(file_names::kVehicleSlots)) return true;
  const std::string_view digits =
      folded.size() < 1 + kCar.size() + kExtension.size()
          ? std::string_view()
          : std::string_view(folded).substr(1 + kCar.size(),
                                            folded.size() - 1 - kCar.size() - kExtension.size());
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos &&
         std::string_view("AMRG").find(folded[0]) != std::string_view::npos &&
         folded.compare(1, kCar.size(), kCar) == 0 && folded.ends_with(kExtension);
}

int SlotCount(storage::ProgramFolder& folder) {
  const std::uint64_t bytes = folder.Length(file_names::kVehicleSlots);
  auto slots = static_cast<int>(std::min<std::uint64_t>(
      (bytes + vehicles::kSlotRecordLength - 1) / vehicles::kSlotRecordLength,
      vehicles::kMostSlots));
  for (const vehicles::Vehicle& vehicle : vehicles::ReadVehicles(folder).vehicles) {
    slots = std::max(slots, std::min(vehicle.slot, vehicles::kMostSlots));
  }
  return slots;
}

VehicleWriter::VehicleWriter(const BackupSet& set, storage::ProgramFolder& folder,
                             Attendant& attendant)
    : set_(set), folder_(folder), attendant_(attendant), slots_(SlotCount(folder)) {}

void VehicleWriter::StartDisk(Disk& disk, int) {
  disk_ = &disk;
  first_ = next_;
  lines_.clear();
}

Step VehicleWriter::PutNext() {
  if (next_ >= total()) return Step::kEnd;
  const Step step = next_ == 0 ? PutTable() : PutLine();
  if (step == Step::kDone) ++next_;
  return step;
}

Step VehicleWriter::PutTable() {
  const auto table = OpenLive(folder_, file_names::kVehicleSlots);
  if (!table.file) return table.fault == storage::Fault::kMissing ? Step::kDone : Step::kBadSource;
  const auto copy = disk_->Make("CarMnt1.Ab1");
  if (!copy) return Step::kRefused;
  const Step step = CopyFile(*table.file, *copy, attendant_);
  if (step == Step::kDone) {
    if (report_.copied.empty()) report_.copied.emplace_back(file_names::kVehicleSlots);
    const auto written = disk_->Open("CarMnt1.Ab1");
    return written ? CompareFiles(*written, *table.file, attendant_) : Step::kDiffers;
  }
  return step;
}

std::string VehicleWriter::NameOf(int piece) const {
  const auto kind = static_cast<std::size_t>((piece - 1) / slots_);
  return Filled(set_.files[kind].live, 0, (piece - 1) % slots_ + 1);
}

// The disk may have to take it twice.
void VehicleWriter::Note(const storage::ReadResult& read) {
  if (next_ <= noted_) return;
  noted_ = next_;
  if (read.is_unreadable()) report_.left_out.push_back({NameOf(next_), read.fault});
  if (!read.content.empty()) report_.copied.push_back(NameOf(next_));
}

Step VehicleWriter::PutLine() {
  const std::string_view form = set_.files[static_cast<std::size_t>((next_ - 1) / slots_)].form;
  if (lines_.empty() || lines_.back().form != form) {
    auto file = disk_->Make(form);
    if (!file) return Step::kRefused;
    lines_.push_back({std::string(form), std::move(file), 0, next_, next_});
  }
  Lines& lines = lines_.back();
  const auto read = folder_.Read(NameOf(next_));
  const std::string line = Written(LineOf(read.content));
  if (!lines.file->WriteAt(lines.size, line)) return Step::kRefused;
  Note(read);
  lines.size += line.size();
  lines.end = next_ + 1;
  return Step::kDone;
}

Step VehicleWriter::FinishDisk() {
  bool is_on_disk = true;
  for (Lines& lines : lines_) {
    is_on_disk = lines.file->Flush() && is_on_disk;
    is_on_disk = lines.file->Close() && is_on_disk;
  }
  if (!is_on_disk || !disk_->Flush()) {
    TakeBack();
    return Step::kRefused;
  }
  for (Lines& lines : lines_) {
    if (const Step compared = Compare(lines); compared != Step::kDone) return compared;
  }
  return Step::kDone;
}

Step VehicleWriter::Compare(Lines& lines) {
  const auto file = disk_->Open(lines.form);
  std::uint64_t place = 0;
  for (int piece = lines.first; piece < lines.end; ++piece) {
    const std::string line = Written(LineOf(folder_.Read(NameOf(piece)).content));
    std::string written(line.size(), '\0');
    if (!file || file->ReadAt(place, written) < 0 || written != line) return Step::kDiffers;
    place += line.size();
    if (!attendant_.GoOn()) return Step::kStopped;
  }
  return Step::kDone;
}

void VehicleWriter::TakeBack() {
  for (const Lines& lines : lines_) disk_->Remove(lines.form);
  lines_.clear();
  next_ = first_;
}

}  // namespace tarnwell::backup
