#include "storage/redo_note.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "storage/little_endian.h"
#include "text/letters.h"

namespace tarnwell::storage {
namespace {

constexpr std::uint64_t kPage = 4096;  // larger pages of other machines end where some of these do
constexpr std::uint64_t kLongestFile = 4u << 20;
constexpr std::size_t kHead = sizeof(std::uint64_t) + sizeof(std::uint32_t);

// Number, length of what follows, file, offset, bytes, number: a note is whole if it begins and
// ends with the same number.
std::string Pack(std::uint64_t number, std::string_view file, std::uint64_t offset,
                 std::string_view bytes) {
  std::string content;
  AppendText(content, file);
  AppendNumber(content, offset);
  AppendText(content, bytes);
  AppendNumber(content, number);
  std::string note;
  AppendNumber(note, number);
  AppendNumber(note, static_cast<std::uint32_t>(content.size()));
  return note + content;
}

std::optional<RedoNote::Write> Unpack(std::uint64_t number, std::string_view content) {
  auto name = TakeText(content);
  const auto offset = TakeNumber<std::uint64_t>(content);
  auto bytes = TakeText(content);
  if (!name || !offset || !bytes || TakeNumber<std::uint64_t>(content) != number) {
    return std::nullopt;
  }
  return RedoNote::Write{std::move(*name), *offset, std::move(*bytes)};
}

// Puts the bytes that lie over those of the write in their place. True if they are all of it.
bool Patch(RedoNote::Write& write, std::uint64_t offset, std::string_view bytes) {
  const std::uint64_t from = std::max(offset, write.offset);
  const std::uint64_t to = std::min(offset + bytes.size(), write.offset + write.bytes.size());
  write.bytes.replace(from - write.offset, to - from, bytes.substr(from - offset, to - from));
  return to - from == write.bytes.size();
}

}  // namespace

std::size_t RedoNote::InFirstPage(std::uint64_t offset, std::size_t size) {
  return static_cast<std::size_t>(std::min<std::uint64_t>(size, kPage - offset % kPage));
}

bool RedoNote::Set(std::string_view file, std::uint64_t offset, std::string_view bytes) {
  if (bytes.size() > kLongestText || end_ > kLongestFile) return true;
  if (!file_) file_ = files_.Open(path_, OpenMode::kCreate);
  is_set_ = file_ != nullptr;
  return file_ && file_->WriteAt(end_, Pack(++number_, file, offset, bytes));
}

void RedoNote::Clear() {
  if (std::exchange(is_set_, false)) Strike(*file_, end_);
}

void RedoNote::BrokeOff(std::string_view file, std::uint64_t offset, std::string_view bytes) {
  if (!std::exchange(is_set_, false)) return;
  unfinished_.push_back({end_, {std::string(file), offset, std::string(bytes)}});
  end_ += Pack(number_, file, offset, bytes).size();
}

void RedoNote::Overwritten(std::string_view file, std::uint64_t offset, std::string_view bytes) {
  if (unfinished_.empty()) return;
  const auto note = files_.Open(path_, OpenMode::kReadWrite);
  std::vector<Unfinished> left;
  for (auto& [place, write] : unfinished_) {
    const bool is_met = text::EqualIgnoringCase(write.file, file) &&
                        offset < write.offset + write.bytes.size() &&
                        write.offset < offset + bytes.size();
    const bool is_all = is_met && Patch(write, offset, bytes);
    if (note && is_all) Strike(*note, place);
    if (note && is_met && !is_all) {
      note->WriteAt(place, Pack(++number_, write.file, write.offset, write.bytes));
    }
    if (!is_all) left.push_back({place, std::move(write)});
  }
  unfinished_ = std::move(left);
  if (unfinished_.empty()) end_ = 0;
}

// The length stays, so that Read finds what stands behind.
void RedoNote::Strike(File& file, std::uint64_t place) {
  file.WriteAt(place, std::string(sizeof(std::uint64_t), '\0'));
}

std::vector<RedoNote::Unfinished> RedoNote::Read() {
  const auto file = files_.Open(path_, OpenMode::kRead);
  const auto size = file ? file->Size() : std::nullopt;
  if (!size) return {};
  std::string notes(std::min(*size, kLongestFile + 2 * kLongestText), '\0');
  const std::ptrdiff_t count = file->ReadAt(0, notes);
  std::string_view rest(notes.data(), static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)));
  std::vector<Unfinished> unfinished;
  for (std::uint64_t place = 0; !rest.empty();) {
    const auto number = TakeNumber<std::uint64_t>(rest);
    const auto length = TakeNumber<std::uint32_t>(rest);
    if (!length || *length > rest.size()) break;
    auto write = *number == 0 ? std::nullopt : Unpack(*number, rest.substr(0, *length));
    if (write) unfinished.push_back({place, std::move(*write)});
    if (*number != 0 && !write) break;
    rest.remove_prefix(*length);
    end_ = place += kHead + *length;
  }
  return unfinished;
}

void RedoNote::Settle(const std::function<bool(const Write&)>& settle) {
  Close();  // the file goes: a note that is still open would be written to nowhere
  std::vector<std::uint64_t> settled;
  for (Unfinished& noted : Read()) {
    if (settle(noted.write)) {
      settled.push_back(noted.place);
    } else {
      unfinished_.push_back(std::move(noted));
    }
  }
  if (unfinished_.empty()) {
    end_ = 0;
    files_.Remove(path_);
  } else if (const auto note = files_.Open(path_, OpenMode::kReadWrite)) {
    for (const std::uint64_t place : settled) Strike(*note, place);
  }
}

}  // namespace tarnwell::storage
