#include "storage/record_file.h"

#include <algorithm>

#include "storage/little_endian.h"

namespace tarnwell::storage {
namespace {

constexpr std::size_t kScanPiece = 256u << 10;  // bytes read at a time

}  // namespace

RecordFile::RecordFile(ProgramFolder& folder, std::string_view name, int record_length)
    : folder_(folder), name_(name), record_length_(record_length) {
  if (record_length < 1) return;
  file_ = folder.Open(name, OpenMode::kCreate);
  // What may not be changed can still be read; a supplied file doesn't stand in here.
  if (!file_) {
    fault_ = folder.fault();
    if (folder.Length(name) > 0) file_ = folder.Open(name, OpenMode::kRead);
    has_failed_ = !file_;
  }
}

std::string RecordFile::Read(int record, std::size_t size) {
  if (!file_ || record < 1) return {};
  std::string bytes(std::min(size, Width()), '\0');
  const std::ptrdiff_t count = file_->ReadAt(OffsetOf(record), bytes);
  if (count < 0) ReadFailed();
  bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
  return bytes;
}

bool RecordFile::Write(int record, std::string_view bytes) {
  if (!file_ || record < 1 || bytes.size() > Width()) return false;
  if (folder_.WriteAt(*file_, name_, OffsetOf(record), bytes)) return true;
  if (fault_ == Fault::kNone) fault_ = folder_.fault();  // else it was opened for reading alone
  return false;
}

void RecordFile::ReadFailed() {
  has_failed_ = true;
  fault_ = folder_.files().fault();
}

std::string RecordFile::GetText(int record) {
  const std::string bytes = Read(record, Width());
  std::string_view rest = bytes;
  return TakeText(rest).value_or(std::string());
}

TaggedValue RecordFile::GetTagged(int record) { return UnpackTagged(Read(record, Width())); }

std::int16_t RecordFile::GetInteger(int record) {
  const std::string bytes = Read(record, sizeof(std::int16_t));
  std::string_view rest = bytes;
  return TakeNumber<std::int16_t>(rest).value_or(0);
}

std::string RecordFile::GetStructure(int record, std::size_t size) {
  std::string bytes = Read(record, size);
  bytes.resize(std::min(size, Width()), '\0');
  return bytes;
}

bool RecordFile::PutText(int record, std::string_view text) {
  if (text.size() > kLongestText) return false;
  std::string bytes;
  AppendText(bytes, text);
  return Write(record, bytes);
}

bool RecordFile::PutTagged(int record, const TaggedValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text && text->size() > kLongestText) return false;
  return Write(record, PackTagged(value));
}

bool RecordFile::PutInteger(int record, std::int16_t value) {
  std::string bytes;
  AppendNumber(bytes, value);
  return Write(record, bytes);
}

bool RecordFile::PutStructure(int record, std::string_view bytes) { return Write(record, bytes); }

void RecordFile::Scan(int first, const std::function<bool(int, std::string_view)>& visit) {
  if (!file_ || first < 1) return;
  const std::size_t width = Width();
  const std::size_t room = std::max(kScanPiece / width, std::size_t{1}) * width;
  const auto piece = std::make_unique_for_overwrite<char[]>(room);
  for (int record = first;;) {
    const std::ptrdiff_t count = file_->ReadAt(OffsetOf(record), {piece.get(), room});
    if (count < 0) ReadFailed();
    if (count <= 0) return;
    const auto end = static_cast<std::size_t>(count);
    const std::size_t whole_end = (end + width - 1) / width * width;
    std::fill(piece.get() + end, piece.get() + whole_end, '\0');
    for (std::size_t place = 0; place < whole_end; place += width) {
      if (!visit(record++, {piece.get() + place, width})) return;
    }
    if (end < room) return;
  }
}

bool RecordFile::Close() {
  const auto file = std::move(file_);
  if (!file) return false;
  if (file->Close()) return true;
  fault_ = folder_.files().fault();
  return false;
}

Outcome RecordFile::Finish(bool all_put) {
  if (Close() && all_put) return {};
  return fault_ == Fault::kNone ? Fault::kBroken : fault_;
}

}  // namespace tarnwell::storage
