#include "storage/replacement.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <set>
#include <sstream>
#include <utility>

#include "storage/file_names.h"
#include "storage/whole_file_save.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::storage {
namespace {

// The journal: a mark, what is replaced, and, from the commit on, a line for each file that is
// renamed: "old" or "new", the name that it has in between, and its own name. The last line is a
// mark too. Names are UTF-8 and hold no line end.
constexpr std::string_view kMark = "Tarnwell replacement 1";
constexpr std::string_view kEnd = "end";
constexpr std::string_view kOld = "old ";
constexpr std::string_view kNew = "new ";
constexpr std::uint64_t kLongestJournal = 64u << 20;  // bytes

struct Renaming {
  std::string between;  // the name that the file has meanwhile
  std::string own;
};

struct Journal {
  std::string what;
  std::vector<Renaming> old_files;
  std::vector<Renaming> new_files;
  bool is_committed = false;
};

std::string JournalPath(const ProgramFolder& folder) {
  return folder.path() + "/" + std::string(file_names::kReplacementJournal);
}

std::string Numbered(std::string_view prefix, int number) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "%08d", number);
  return std::string(prefix) + digits;
}

// The name of a file of the folder, without the folder.
std::string FileIn(const ProgramFolder& folder, const std::string& path) {
  return path.substr(folder.path().size() + 1);
}

Fault FaultOf(const FileSystem& files) {
  return files.fault() == Fault::kNone ? Fault::kBroken : files.fault();
}

bool Write(ProgramFolder& folder, const std::string& what, const std::vector<std::string>& lines) {
  std::string content = std::string(kMark) + "\n" + what + "\n";
  for (const std::string& line : lines) content += line + "\n";
  content += std::string(kEnd) + "\n";
  return SaveWhole(folder.files(), folder.path(), JournalPath(folder), content);
}

// "old <between> <own>"
bool TakeRenaming(std::string_view line, Journal& journal) {
  const bool is_old = line.starts_with(kOld);
  if (!is_old && !line.starts_with(kNew)) return false;
  line.remove_prefix(kOld.size());
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return false;
  auto& list = is_old ? journal.old_files : journal.new_files;
  const std::string between(line.substr(0, blank));
  const std::string own(line.substr(blank + 1));
  if (between.find('/') != std::string::npos || own.find('/') != std::string::npos) return false;
  list.push_back({between, own});
  return true;
}

std::optional<Journal> Parse(const std::string& content) {
  std::istringstream lines(content);
  Journal journal;
  std::string line;
  if (!std::getline(lines, line) || line != kMark) return std::nullopt;
  if (!std::getline(lines, journal.what)) return std::nullopt;
  while (std::getline(lines, line)) {
    if (line == kEnd) return journal;
    if (!TakeRenaming(line, journal)) return std::nullopt;
    journal.is_committed = true;
  }
  return std::nullopt;
}

// What is in the folder. To ask for one file wouldn't do: an answer that fails looks like a no.
using Names = std::set<std::string>;
std::optional<Names> NamesIn(FileSystem& files, const std::string& folder) {
  const auto listed = files.List(folder);
  if (!listed) return std::nullopt;
  return Names(listed->begin(), listed->end());
}

// Renames each file that is still under the one name and not yet under the other.
bool RenameAll(FileSystem& files, const std::string& folder, const std::vector<Renaming>& list,
               std::string Renaming::*from, std::string Renaming::*to, bool over_another) {
  const auto names = NamesIn(files, folder);
  return names && std::ranges::all_of(list, [&](const Renaming& renaming) {
           if (!names->contains(renaming.*from)) return true;
           if (!over_another && names->contains(renaming.*to)) return true;
           return files.Rename(folder + "/" + renaming.*from, folder + "/" + renaming.*to);
         });
}

// Both can be repeated after they were broken off.

bool Finish(FileSystem& files, const std::string& folder, const Journal& journal) {
  return RenameAll(files, folder, journal.old_files, &Renaming::own, &Renaming::between, false) &&
         files.FlushFolder(folder) &&
         RenameAll(files, folder, journal.new_files, &Renaming::between, &Renaming::own, true) &&
         files.FlushFolder(folder);
}

bool PutOldBack(FileSystem& files, const std::string& folder, const Journal& journal) {
  return RenameAll(files, folder, journal.new_files, &Renaming::own, &Renaming::between, false) &&
         files.FlushFolder(folder) &&
         RenameAll(files, folder, journal.old_files, &Renaming::between, &Renaming::own, true) &&
         files.FlushFolder(folder);
}

// What lies beside the user's files without a journal is of no use to anybody.
void Sweep(FileSystem& files, const std::string& folder) {
  const auto names = files.List(folder);
  if (!names) return;
  for (const std::string& name : *names) {
    if (name.starts_with(file_names::kNewPrefix) || name.starts_with(file_names::kOldPrefix)) {
      files.Remove(folder + "/" + name);
    }
  }
}

bool RemoveJournal(ProgramFolder& folder) {
  return folder.files().Remove(JournalPath(folder)) && folder.files().FlushFolder(folder.path());
}

}  // namespace

Replacement::Replacement(ProgramFolder& folder, std::string what)
    : folder_(folder),
      files_(folder.files()),
      names_(folder.files(), folder.path()),
      what_(std::move(what)) {}

Replacement::~Replacement() {
  if (!has_begun_ || is_stuck_) return;
  for (const auto& [folded, made] : made_) files_.Remove(PathOf(made.sibling));
  RemoveJournal(folder_);
}

Outcome Replacement::Begin() {
  has_begun_ = Write(folder_, what_, {});
  // What an earlier one couldn't remove would be taken for this one's.
  if (has_begun_) Sweep(files_, folder_.path());
  return has_begun_ ? Outcome() : Outcome(FaultOf(files_));
}

bool Replacement::HasMade(std::string_view name) const {
  return made_.contains(text::UpperCase(name));
}

std::unique_ptr<File> Replacement::Make(std::string_view name) {
  if (!has_begun_ || !IsPlainFileName(name)) return nullptr;
  const std::string folded = text::UpperCase(name);
  if (const auto earlier = made_.find(folded); earlier != made_.end()) {
    files_.Remove(PathOf(earlier->second.sibling));
    made_.erase(earlier);
  }
  const std::string sibling = Numbered(file_names::kNewPrefix, next_number_++);
  auto file = files_.Open(PathOf(sibling), OpenMode::kCreateFresh);
  if (!file) return nullptr;
  made_[folded] = {std::string(name), sibling};
  if (const auto live = names_.Locate(name)) files_.CopyPermissions(*live, PathOf(sibling));
  return file;
}

// The journal's lines: first the user's files that are there, then those that take their place.
Outcome Replacement::Plan(std::vector<std::string>& lines) {
  std::vector<std::string> going = removed_;
  for (const auto& [folded, made] : made_) going.push_back(made.name);
  std::set<std::string> planned;
  for (const std::string& name : going) {
    const auto path = names_.Locate(name);
    if (!path && !names_.is_listed()) return FaultOf(files_);
    if (!path || !planned.insert(*path).second) continue;
    if (!files_.Open(*path, OpenMode::kRead) && files_.fault() == Fault::kNotPlain) {
      if (HasMade(name)) return Fault::kNotPlain;
      continue;  // a link or a folder isn't ours to move
    }
    lines.push_back(std::string(kOld) + Numbered(file_names::kOldPrefix, next_number_++) + " " +
                    FileIn(folder_, *path));
  }
  for (const auto& [folded, made] : made_) {
    const auto path = names_.Known(made.name);
    lines.push_back(std::string(kNew) + made.sibling + " " +
                    (path ? FileIn(folder_, *path) : text::ToUtf8(made.name).bytes()));
  }
  return {};
}

Outcome Replacement::Commit() {
  std::vector<std::string> lines;
  if (const Outcome planned = Plan(lines); !planned) return planned;
  // The new files' names have to be on the disk before the journal counts on them.
  if (!files_.FlushFolder(folder_.path()) || !Write(folder_, what_, lines)) {
    const Fault fault = FaultOf(files_);
    // The journal may be the new one all the same, and must not be believed.
    is_stuck_ = !Write(folder_, what_, {}) && !RemoveJournal(folder_);
    return fault;
  }
  Journal journal;
  for (const std::string& line : lines) TakeRenaming(line, journal);
  if (!Finish(files_, folder_.path(), journal)) {
    const Fault fault = FaultOf(files_);
    // Before the new files go, the journal mustn't count on them any more.
    is_stuck_ = !PutOldBack(files_, folder_.path(), journal) || !Write(folder_, what_, {});
    return fault;
  }
  has_begun_ = false;
  // As long as the journal is there, the old files tell that all has been done.
  if (RemoveJournal(folder_)) {
    for (const Renaming& old : journal.old_files) files_.Remove(PathOf(old.between));
  }
  return {};
}

RecoveredReplacement RecoverReplacement(ProgramFolder& folder) {
  FileSystem& files = folder.files();
  const auto names = files.List(folder.path());
  if (!names) return {};
  if (std::ranges::find(*names, file_names::kReplacementJournal) == names->end()) {
    Sweep(files, folder.path());
    return {};
  }
  RecoveredReplacement recovered{Recovery::kStuck, {}, Fault::kBroken};
  const auto file = files.Open(JournalPath(folder), OpenMode::kRead);
  const auto size = file ? file->Size() : std::nullopt;
  if (!size || *size > kLongestJournal) {
    recovered.fault = FaultOf(files);
    return recovered;
  }
  std::string content(static_cast<std::size_t>(*size), '\0');
  const bool is_read = file->ReadAt(0, content) == static_cast<std::ptrdiff_t>(content.size());
  const auto journal = is_read ? Parse(content) : std::nullopt;
  if (!journal) return recovered;
  recovered.what = journal->what;
  Recovery reached = Recovery::kStuck;
  if (!journal->is_committed) {
    reached = Recovery::kUndone;
  } else if (Finish(files, folder.path(), *journal)) {
    reached = Recovery::kFinished;
  } else if (PutOldBack(files, folder.path(), *journal) && Write(folder, journal->what, {})) {
    reached = Recovery::kUndone;
  } else {
    recovered.fault = FaultOf(files);
    return recovered;
  }
  recovered.recovery = reached;
  recovered.fault = Fault::kNone;
  if (RemoveJournal(folder)) Sweep(files, folder.path());
  return recovered;
}

}  // namespace tarnwell::storage
