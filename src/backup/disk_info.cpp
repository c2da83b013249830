#include "backup/disk_info.h"

#include <algorithm>

#include "storage/little_endian.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

constexpr int kRecords = 6;
constexpr std::string_view kFinished = "T1";
constexpr double kLargestNumber = 1e9;

std::string NumberText(int number) { return number == 0 ? "" : std::to_string(number); }

int NumberIn(std::string_view text) {
  return static_cast<int>(std::clamp(text::LeadingNumber(text), 0.0, kLargestNumber));
}

bool Put(storage::File& file, std::string_view bytes) {
  const bool is_written = file.WriteAt(0, bytes) && file.Flush();
  return file.Close() && is_written;
}

}  // namespace

std::string InfoBytes(const DiskInfo& info, int record_length) {
  const auto width = static_cast<std::size_t>(record_length);
  const std::string values[kRecords] = {info.tag,
                                        NumberText(info.disk),
                                        NumberText(info.next),
                                        std::to_string(info.position),
                                        std::to_string(info.count),
                                        std::string(info.finished ? kFinished : "")};
  std::string bytes;
  for (const std::string& value : values) {
    storage::AppendText(bytes, value);
    bytes.resize((bytes.size() + width - 1) / width * width, '\0');
  }
  return bytes;
}

DiskInfo InfoOf(std::string_view bytes, int record_length) {
  const auto width = static_cast<std::size_t>(record_length);
  std::string values[kRecords];
  for (std::size_t i = 0; i < kRecords && i * width < bytes.size(); ++i) {
    std::string_view record = bytes.substr(i * width, width);
    values[i] = text::Trim(storage::TakeText(record).value_or(std::string()));
  }
  return {values[0],           NumberIn(values[1]), NumberIn(values[2]),
          NumberIn(values[3]), NumberIn(values[4]), values[5] == kFinished};
}

std::optional<DiskInfo> ReadInfo(Disk& disk, const BackupSet& set, int number) {
  const auto file = disk.Open(Filled(set.info, 0, number));
  if (!file) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(set.info_length * kRecords), '\0');
  const std::ptrdiff_t count = file->ReadAt(0, bytes);
  if (count < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(count));
  return InfoOf(bytes, set.info_length);
}

bool WriteInfo(Disk& disk, const BackupSet& set, const DiskInfo& info) {
  const auto file = disk.OpenToWrite(Filled(set.info, 0, info.disk));
  return file && Put(*file, InfoBytes(info, set.info_length));
}

bool MakeInfo(Disk& disk, const BackupSet& set, const DiskInfo& info) {
  const auto file = disk.Make(Filled(set.info, 0, info.disk));
  return file && Put(*file, InfoBytes(info, set.info_length));
}

}  // namespace tarnwell::backup
