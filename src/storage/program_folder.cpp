#include "storage/program_folder.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/whole_file_save.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::storage {
namespace {

// The code page leaves five places of its upper half to control characters.
bool IsForbidden(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  return code < 0x20 || code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F ||
         code == 0x90 || code == 0x9D || letter == '/' || letter == '\\' || letter == ':';
}

bool IsOwnName(std::string_view name) {
  return text::EqualIgnoringCase(name.substr(0, file_names::kOwnPrefix.size()),
                                 file_names::kOwnPrefix);
}

// Whether of two pages only one differs from what was there.
bool ChangesOnePage(std::uint64_t offset, std::string_view before, std::string_view bytes) {
  const std::size_t first = RedoNote::InFirstPage(offset, bytes.size());
  const std::string_view rest = bytes.substr(first);
  if (before.size() > first && before.substr(first) == rest) return true;
  const bool is_in_next = RedoNote::InFirstPage(offset + first, rest.size()) == rest.size();
  return is_in_next && before.substr(0, first) == bytes.substr(0, first);
}

std::string LinksFolder(const std::string& supplied_folder) {
  if (supplied_folder.empty()) return {};
  return supplied_folder + "/" + std::string(file_names::kLinksFolder);
}

}  // namespace

bool IsPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.size() <= file_names::kLongestName &&
         std::none_of(name.begin(), name.end(), IsForbidden) && !IsOwnName(name) &&
         text::ToUtf8(name).bytes().size() <= file_names::kLongestName;
}

ProgramFolder::ProgramFolder(FileSystem& files, std::string user_folder,
                             std::string supplied_folder)
    : files_(files),
      user_folder_(std::move(user_folder)),
      user_names_(files, user_folder_),
      supplied_names_{FolderNames(files, supplied_folder),
                      FolderNames(files, LinksFolder(supplied_folder))},
      redo_note_(files, user_folder_ + "/" + std::string(file_names::kRedoNote)) {}

std::unique_ptr<File> ProgramFolder::Open(std::string_view name, OpenMode mode) {
  auto [file, fault] = TryOpen(name, mode);
  if (!file) fault_ = fault;
  return std::move(file);
}

ProgramFolder::Opened ProgramFolder::TryOpen(std::string_view name, OpenMode mode) {
  if (!IsPlainFileName(name)) return {nullptr, Fault::kNotPlain};
  const bool is_fresh = mode == OpenMode::kCreateFresh;
  const OpenMode existing = mode == OpenMode::kCreate ? OpenMode::kReadWrite : mode;
  if (const auto path = user_names_.Known(name); path && !is_fresh) {
    if (auto file = files_.Open(*path, existing)) return {std::move(file)};
  }
  if (const auto path = user_names_.Locate(name)) {
    return is_fresh ? Opened{nullptr, Fault::kNotPermitted} : OpenAt(*path, existing);
  }
  if (!user_names_.is_listed()) return {nullptr, FolderFault()};
  if (mode == OpenMode::kRead) return OpenSupplied(name);
  if (mode == OpenMode::kReadWrite) return {nullptr, Fault::kMissing};
  auto opened = OpenAt(NewPath(name), OpenMode::kCreateFresh);
  if (opened.file) user_names_.Learn(name);
  return opened;
}

ProgramFolder::Opened ProgramFolder::OpenAt(const std::string& path, OpenMode mode) {
  auto file = files_.Open(path, mode);
  const Fault fault = file ? Fault::kNone : files_.fault();
  return {std::move(file), fault};
}

ProgramFolder::Opened ProgramFolder::OpenSupplied(std::string_view name) {
  for (FolderNames& names : supplied_names_) {
    if (const auto path = names.Known(name)) {
      if (auto file = files_.Open(*path, OpenMode::kRead)) return {std::move(file)};
    }
  }
  for (FolderNames& names : supplied_names_) {
    if (const auto path = names.Locate(name)) return OpenAt(*path, OpenMode::kRead);
  }
  return {nullptr, Fault::kMissing};
}

bool ProgramFolder::IsSupplied(std::string_view name) {
  return std::ranges::any_of(supplied_names_,
                             [&](FolderNames& names) { return names.Locate(name).has_value(); });
}

ReadResult ProgramFolder::Read(std::string_view name, std::uint64_t longest) {
  const auto [file, fault] = TryOpen(name, OpenMode::kRead);
  if (!file) return {{}, fault};
  const auto size = file->Size();
  if (!size) return {{}, files_.fault()};
  if (*size > longest) return {{}, Fault::kTooLarge};
  ReadResult result{std::string(static_cast<std::size_t>(*size), '\0')};
  const std::ptrdiff_t count = file->ReadAt(0, result.content);
  if (count < 0) return {{}, files_.fault()};
  result.content.resize(static_cast<std::size_t>(count));
  return result;
}

std::optional<std::string> ProgramFolder::ReadWhole(std::string_view name) {
  auto result = Read(name);
  if (result.fault != Fault::kNone) return std::nullopt;
  return std::move(result.content);
}

Outcome ProgramFolder::WriteWhole(std::string_view name, std::string_view content) {
  if (!IsPlainFileName(name)) return fault_ = Fault::kNotPlain;
  auto path = user_names_.Locate(name);
  if (!path && !user_names_.is_listed()) return fault_ = FolderFault();
  if (!path) path = NewPath(name);
  // A link, a folder or a pipe of that name isn't ours to replace.
  if (OpenAt(*path, OpenMode::kRead).fault == Fault::kNotPlain) return fault_ = Fault::kNotPlain;
  if (!SaveWhole(files_, user_folder_, *path, content)) return fault_ = files_.fault();
  user_names_.Learn(name);
  return {};
}

Outcome ProgramFolder::Delete(std::string_view name) {
  if (!IsPlainFileName(name)) return fault_ = Fault::kNotPlain;
  const auto path = user_names_.Locate(name);
  if (!path && !user_names_.is_listed()) return fault_ = FolderFault();
  if (path && !files_.Remove(*path)) return fault_ = files_.fault();
  user_names_.Forget(name);
  return {};
}

Outcome ProgramFolder::Copy(std::string_view source, std::string_view target) {
  const auto read = Read(source);
  if (read.fault != Fault::kNone) return fault_ = read.fault;
  return WriteWhole(target, read.content);
}

bool ProgramFolder::Exists(std::string_view name) {
  return IsPlainFileName(name) && (user_names_.Locate(name) || IsSupplied(name));
}

std::uint64_t ProgramFolder::Length(std::string_view name) {
  if (!IsPlainFileName(name)) return 0;
  const auto path = user_names_.Locate(name);
  const auto file = path ? files_.Open(*path, OpenMode::kRead) : nullptr;
  return file ? file->Size().value_or(0) : 0;
}

bool ProgramFolder::Worked(bool worked) {
  if (!worked) fault_ = files_.fault();
  return worked;
}

bool ProgramFolder::WriteAt(File& file, std::string_view name, std::uint64_t offset,
                            std::string_view bytes) {
  const bool can_tear = RedoNote::InFirstPage(offset, bytes.size()) != bytes.size();
  const bool is_written =
      can_tear ? WriteAcrossPages(file, name, offset, bytes) : Worked(file.WriteAt(offset, bytes));
  if (is_written) redo_note_.Overwritten(name, offset, bytes);
  return is_written;
}

// A write that the disk breaks off is undone; where the disk refuses that too, its note stays.
// Where only one of two pages changes, a killed process leaves the whole old or the whole new
// bytes, and nothing is noted before.
bool ProgramFolder::WriteAcrossPages(File& file, std::string_view name, std::uint64_t offset,
                                     std::string_view bytes) {
  const std::size_t first = RedoNote::InFirstPage(offset, bytes.size());
  std::string before(bytes.size(), '\0');
  const std::ptrdiff_t count = file.ReadAt(offset, before);
  if (!Worked(count >= 0)) return false;
  before.resize(static_cast<std::size_t>(count));
  const bool can_tear = !ChangesOnePage(offset, before, bytes);
  before.resize(first, '\0');
  if (can_tear && !redo_note_.Set(name, offset, bytes) &&
      (files_.fault() == Fault::kFull || files_.fault() == Fault::kBroken)) {
    fault_ = files_.fault();
    redo_note_.Clear();
    return false;
  }
  const bool is_written = Worked(file.WriteAt(offset, bytes));
  if (is_written || file.WriteAt(offset, before)) {
    redo_note_.Clear();
  } else {
    if (!can_tear) redo_note_.Set(name, offset, bytes);
    redo_note_.BrokeOff(name, offset, bytes);
  }
  return is_written;
}

void ProgramFolder::Recover() {
  redo_note_.Settle([this](const RedoNote::Write& write) { return FinishTornWrite(write); });
  SweepSiblings(files_, user_folder_);
}

// Only a write that had begun is finished: where the first page isn't the noted one, the file was
// never touched or has been exchanged since.
bool ProgramFolder::FinishTornWrite(const RedoNote::Write& write) {
  const auto [file, fault] = TryOpen(write.file, OpenMode::kReadWrite);
  if (!file) return fault == Fault::kMissing || fault == Fault::kNotPlain;
  const std::string_view begun =
      std::string_view(write.bytes)
          .substr(0, RedoNote::InFirstPage(write.offset, write.bytes.size()));
  std::string stored(begun.size(), '\0');
  const std::ptrdiff_t count = file->ReadAt(write.offset, stored);
  if (count < 0) return false;
  stored.resize(static_cast<std::size_t>(count));
  return stored != begun || file->WriteAt(write.offset, write.bytes);
}

std::string ProgramFolder::NewPath(std::string_view name) const {
  return user_folder_ + "/" + text::ToUtf8(name).bytes();
}

Fault ProgramFolder::FolderFault() const {
  const Fault fault = files_.fault();
  return fault == Fault::kMissing ? Fault::kGone : fault;
}

}  // namespace tarnwell::storage
