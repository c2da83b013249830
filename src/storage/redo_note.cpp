#include "storage/redo_note.h"

#include <algorithm>

#include "storage/little_endian.h"

namespace tarnwell::storage {
namespace {

constexpr std::uint64_t kPage = 4096;  // larger pages of other machines end where some of these do
constexpr std::size_t kLongestNote = 2 * kLongestText;

}  // namespace

std::size_t RedoNote::InFirstPage(std::uint64_t offset, std::size_t size) {
  return static_cast<std::size_t>(std::min<std::uint64_t>(size, kPage - offset % kPage));
}

// Number, length of what follows, file, offset, bytes, number: a note is whole if it begins and
// ends with the same number.
void RedoNote::Set(std::string_view file, std::uint64_t offset, std::string_view bytes) {
  if (bytes.size() > kLongestText) return;
  if (!file_) file_ = files_.Open(path_, OpenMode::kCreate);
  if (!file_) return;
  ++number_;
  std::string content;
  AppendText(content, file);
  AppendNumber(content, offset);
  AppendText(content, bytes);
  AppendNumber(content, number_);
  std::string note;
  AppendNumber(note, number_);
  AppendNumber(note, static_cast<std::uint32_t>(content.size()));
  note += content;
  file_->WriteAt(0, note);
}

void RedoNote::Clear() {
  if (file_) file_->WriteAt(0, std::string(sizeof(std::uint64_t), '\0'));
}

std::optional<RedoNote::Write> RedoNote::Read() {
  const auto file = files_.Open(path_, OpenMode::kRead);
  if (!file) return std::nullopt;
  std::string note(kLongestNote, '\0');
  const std::ptrdiff_t count = file->ReadAt(0, note);
  std::string_view rest(note.data(), static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)));
  const auto number = TakeNumber<std::uint64_t>(rest);
  const auto length = TakeNumber<std::uint32_t>(rest);
  if (!length || *number == 0) return std::nullopt;
  rest = rest.substr(0, *length);
  auto name = TakeText(rest);
  const auto offset = TakeNumber<std::uint64_t>(rest);
  auto bytes = TakeText(rest);
  if (!name || !offset || !bytes || TakeNumber<std::uint64_t>(rest) != number) return std::nullopt;
  return Write{std::move(*name), *offset, std::move(*bytes)};
}

void RedoNote::Remove() {
  file_.reset();
  files_.Remove(path_);
}

}  // namespace tarnwell::storage
