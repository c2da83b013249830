#include "backup/copying.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace tarnwell::backup {
namespace {

constexpr std::size_t kPiece = 256u << 10;  // bytes between two looks at the window

// Bytes after which a large file is brought to the disk, so that the last flush takes no time in
// which the window would stand still.
constexpr std::uint64_t kFlushed = 4u << 20;

bool Write(const Range& to, std::uint64_t done, std::string_view piece) {
  const std::uint64_t place = to.offset + done;
  const bool is_due = place / kFlushed != (place + piece.size()) / kFlushed;
  return to.file.WriteAt(place, piece) && (!is_due || to.file.Flush());
}

// What `visit` did with each piece of the range, until it isn't kDone.
template <typename Visit>
Step ForEachPiece(const Range& range, std::uint64_t size, Attendant& attendant, Visit visit) {
  if (size == 0) return Step::kDone;
  const std::size_t room = static_cast<std::size_t>(std::min<std::uint64_t>(kPiece, size));
  const auto piece = std::make_unique_for_overwrite<char[]>(room);
  for (std::uint64_t done = 0; done < size;) {
    const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(room, size - done));
    const std::ptrdiff_t count = range.file.ReadAt(range.offset + done, {piece.get(), part});
    if (count != static_cast<std::ptrdiff_t>(part)) return Step::kBadSource;
    const Step step = visit(done, std::string_view(piece.get(), part));
    if (step != Step::kDone) return step;
    done += part;
    if (done < size && !attendant.GoOn()) return Step::kStopped;
  }
  return Step::kDone;
}

}  // namespace

Step CopyBytes(const Range& from, const Range& to, std::uint64_t size, Attendant& attendant) {
  return ForEachPiece(from, size, attendant, [&](std::uint64_t done, std::string_view piece) {
    return Write(to, done, piece) ? Step::kDone : Step::kRefused;
  });
}

Step CompareBytes(const Range& written, const Range& source, std::uint64_t size,
                  Attendant& attendant) {
  const auto other = std::make_unique_for_overwrite<char[]>(kPiece);
  return ForEachPiece(source, size, attendant, [&](std::uint64_t done, std::string_view piece) {
    const std::span<char> room(other.get(), piece.size());
    const std::ptrdiff_t count = written.file.ReadAt(written.offset + done, room);
    const bool is_same = count == static_cast<std::ptrdiff_t>(piece.size()) &&
                         piece == std::string_view(other.get(), piece.size());
    return is_same ? Step::kDone : Step::kDiffers;
  });
}

Step CopyFile(storage::File& from, storage::File& to, Attendant& attendant) {
  const auto size = from.Size();
  if (!size) return Step::kBadSource;
  const Step copied = CopyBytes({from}, {to}, *size, attendant);
  if (copied != Step::kDone) return copied;
  const bool is_flushed = to.Flush();
  return to.Close() && is_flushed ? Step::kDone : Step::kRefused;
}

Step CompareFiles(storage::File& written, storage::File& source, Attendant& attendant) {
  const auto size = source.Size();
  if (!size) return Step::kBadSource;
  if (written.Size() != size) return Step::kDiffers;
  return CompareBytes({written}, {source}, *size, attendant);
}

}  // namespace tarnwell::backup
