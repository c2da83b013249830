// Several files of the program's folder replaced together.

#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "storage/fault.h"
#include "storage/folder_names.h"
#include "storage/program_folder.h"

namespace tarnwell::storage {

// New files are made beside the user's and take their names only when all of them are on the disk.
// Until Commit nothing of the user's is touched. In it the old files are moved aside within the
// folder, the new ones get their names, and only then the old ones go. A journal says how far that
// is: whatever happens, the folder holds all of the old or all of the new files, perhaps only after
// RecoverReplacement. One at a time; names are those of a ProgramFolder.
class Replacement {
 public:
  // `what` is one line for the person who is told after an interruption: "Restore of ...".
  Replacement(ProgramFolder& folder, std::string what);
  // Undoes what wasn't committed.
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  Outcome Begin();
  // An empty file that is to become `name`; one that was made for that name before goes. The caller
  // writes it, flushes it and closes it. Null for a name that isn't plain, or on a bad disk.
  std::unique_ptr<File> Make(std::string_view name);
  bool HasMade(std::string_view name) const;
  // The user's file of that name goes, unless one was made for it.
  void Remove(std::string_view name) { removed_.emplace_back(name); }
  // Where it fails everything is as it was, but for is_stuck().
  Outcome Commit();
  // The disk refused the new names and the old ones too. The journal stays: the next start of the
  // program brings one of them about, and until then nothing may be written.
  bool is_stuck() const { return is_stuck_; }

 private:
  struct Made {
    std::string name;     // code page 1252
    std::string sibling;  // the file that it is for now, without the folder
  };
  std::string PathOf(const std::string& file) const { return folder_.path() + "/" + file; }
  Outcome Plan(std::vector<std::string>& lines);

  ProgramFolder& folder_;
  FileSystem& files_;
  FolderNames names_;
  std::string what_;
  std::map<std::string, Made> made_;  // by the name in capitals
  std::vector<std::string> removed_;
  int next_number_ = 1;
  bool has_begun_ = false;
  bool is_stuck_ = false;
};

enum class Recovery {
  kNone,      // nothing was interrupted
  kUndone,    // the old files are all there
  kFinished,  // the new files are all there
  kStuck,     // the disk refuses both: nothing may be written
};

struct RecoveredReplacement {
  Recovery recovery = Recovery::kNone;
  std::string what;  // as the Replacement was told
  Fault fault = Fault::kNone;
};

// For the start of the program, under its FolderLock, before any file is read.
RecoveredReplacement RecoverReplacement(ProgramFolder& folder);

}  // namespace tarnwell::storage
