// Any bytes as the files of a backup: its restore comes to an end, and the program's files are all
// the old ones, or it says that it is complete. The first byte chooses the set.

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_sets.h"
#include "backup/restore_run.h"
#include "memory_file_system.h"

namespace tarnwell::backup {
namespace {

constexpr int kFuzzedYear = 2026;
constexpr int kMostQuestions = 3;

void Require(bool holds) {
  if (!holds) std::abort();
}

class PatientPerson : public Attendant {
 public:
  void ShowDeleting() override {}
  void ShowDisk(int) override {}
  void StartBar(int) override {}
  void MoveBar(int) override {}
  bool GoOn() override { return true; }
  bool AskForDisk(int) override { return ++asked_ <= kMostQuestions; }
  void TellUnreadableDisk() override {}
  std::string DiskPath() override { return "/disk"; }

 private:
  int asked_ = 0;
};

std::vector<std::string> NamesOf(const BackupSet& set) {
  std::vector<std::string> names{"JobHold.Hb2", "Ann.Hb2", "Stat1.hb1"};
  if (!set.info.empty()) names.push_back(Filled(set.info, kFuzzedYear));
  for (const std::string_view name : set.whole) names.push_back(Filled(name, kFuzzedYear));
  for (const BackupFile& file : set.files) {
    for (const int disk : {1, 2}) names.push_back(Filled(file.form, kFuzzedYear, disk));
  }
  return names;
}

// The length of each file stands in the byte before it, in steps of 16.
std::string_view TakeFile(std::string_view& data) {
  if (data.empty()) return {};
  const std::size_t size = 16u * static_cast<unsigned char>(data[0]);
  data.remove_prefix(1);
  const std::string_view file = data.substr(0, size);
  data.remove_prefix(file.size());
  return file;
}

using Contents = std::map<std::string, std::string>;

Contents LiveFiles(const fuzz::MemoryFileSystem& files) {
  Contents live;
  for (const auto& [path, content] : files.contents) {
    if (path.starts_with("/user/")) live[path] = *content;
  }
  return live;
}

void Check(std::string_view data) {
  if (data.empty()) return;
  const auto sets = BackupSets();
  const BackupSet& set = sets[static_cast<unsigned char>(data[0]) % sets.size()];
  data.remove_prefix(1);
  fuzz::MemoryFileSystem files;
  for (const std::string& name : NamesOf(set)) {
    files.contents["/disk/" + name] = std::make_shared<std::string>(TakeFile(data));
  }
  for (const char* name : {"Stat1.Fil", "2026.Fil", "ADDBK1.Fil", "CarMnt1.Fil", "ACar1.Fil"}) {
    files.contents["/user/" + std::string(name)] = std::make_shared<std::string>("mine");
  }
  const Contents before = LiveFiles(files);
  const std::size_t others = files.contents.size() - before.size();
  storage::ProgramFolder folder(files, "/user");
  PatientPerson person;
  RestoreEnd end = RestoreEnd::kUnreadable;
  {
    RestoreRun run(set, kFuzzedYear, folder, person);
    if (run.Find()) {
      run.Check();
      end = run.Run();
    }
  }
  const Contents after = LiveFiles(files);
  Require(end == RestoreEnd::kComplete || after == before);
  Require(files.contents.size() - after.size() == others);
  for (const auto& [path, content] : after) {
    Require(storage::IsPlainFileName(path.substr(std::string_view("/user/").size())));
  }
}

}  // namespace
}  // namespace tarnwell::backup

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  tarnwell::backup::Check({data, size});
  return 0;
}
