// Backup and restore of a company of ten years against a bare copy of the same bytes, with one
// flush at the end of each file. The window's longest wait is the longest time between two looks at
// it.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_run.h"
#include "backup/backup_sets.h"
#include "backup/restore_run.h"
#include "bench_folder.h"
#include "ratio_table.h"
#include "storage/program_folder.h"

namespace tarnwell::bench {
namespace {

constexpr int kYear = 2026;
constexpr int kRounds = 5;
constexpr double kAim = 1.5;
constexpr double kLongestWait = 50;  // milliseconds
constexpr std::size_t kPiece = 256u << 10;

class Onlooker : public backup::Attendant {
 public:
  explicit Onlooker(std::string disk) : disk_(std::move(disk)) {}

  void ShowDeleting() override {}
  void ShowDisk(int) override {}
  void StartBar(int) override { last_ = Clock::now(); }
  void MoveBar(int) override {}
  bool GoOn() override {
    const auto now = Clock::now();
    longest = std::max(longest, std::chrono::duration<double, std::milli>(now - last_).count());
    last_ = now;
    return true;
  }
  bool AskForDisk(int) override { return false; }
  void TellUnreadableDisk() override {}
  std::string DiskPath() override { return disk_; }

  double longest = 0;  // milliseconds

 private:
  using Clock = std::chrono::steady_clock;
  std::string disk_;
  Clock::time_point last_ = Clock::now();
};

void Write(const std::string& folder, const std::string& name, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>('!' + i * 31 % 90);
  std::ofstream(folder + "/" + name, std::ios::binary) << bytes;
}

void WriteValues(const std::string& folder, const std::string& name, int values) {
  std::ofstream file(folder + "/" + name, std::ios::binary);
  for (int i = 0; i < values; ++i) file << "\"value " << i << "\"\r\n";
}

void FillCompany(const std::string& folder) {
  for (int i = 0; i < 47; ++i) {
    Write(folder, "EmployPolicy" + std::to_string(i) + ".Fl2", 50'000);
  }
  Write(folder, "ADDBK1.Fil", 20'000 * 1190);
  Write(folder, "ADDBK2.Fil", 20'000 * 60);
  Write(folder, "ADDBK3.Fil", 20'000 * 250);
  Write(folder, "Name1.Fil", 2'000 * 1002);
  Write(folder, "Name2.Fil", 2'000 * 60);
  Write(folder, "Name3.Fil", 2'000 * 250);
  Write(folder, "Photobk3.Fil", 5'000 * 300);
  Write(folder, "Photobk4.Fil", 5'000 * 60);
  Write(folder, "CarMnt1.Fil", 20 * 150);
  for (int slot = 1; slot <= 20; ++slot) {
    const std::string ending = std::to_string(slot) + ".Fil";
    WriteValues(folder, "ACar" + ending, 325);
    for (const char* kind : {"MCar", "RCar", "GCar"}) WriteValues(folder, kind + ending, 2'000);
  }
}

void CopyBare(const std::string& from, const std::string& to) {
  static char piece[kPiece];
  const int source = ::open(from.c_str(), O_RDONLY);
  const int target = ::open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  Check(source >= 0 && target >= 0, "open");
  for (ssize_t count; (count = ::read(source, piece, kPiece)) > 0;) {
    Check(::write(target, piece, static_cast<std::size_t>(count)) == count, "write");
  }
  Check(::fdatasync(target) == 0, "flush");
  ::close(source);
  ::close(target);
}

void CopyFolder(const std::string& from, const std::string& to) {
  for (const auto& entry : std::filesystem::directory_iterator(from)) {
    CopyBare(entry.path(), to + "/" + entry.path().filename().string());
  }
}

struct World {
  explicit World(const std::string& parent) : live(parent), disk(parent), bare(parent) {
    FillCompany(live.path());
  }

  void BackUp(int mode) {
    Onlooker person(disk.path());
    backup::BackupRun run(*backup::SetOf(mode), kYear, folder, person);
    Check(run.Run() == backup::BackupEnd::kComplete, "back up");
    longest = std::max(longest, person.longest);
  }
  void Restore(int mode) {
    Onlooker person(disk.path());
    backup::RestoreRun run(*backup::SetOf(mode), kYear, folder, person);
    Check(run.Find() && run.Run() == backup::RestoreEnd::kComplete, "restore");
    longest = std::max(longest, person.longest);
  }

  BenchFolder live;
  BenchFolder disk;
  BenchFolder bare;
  storage::ProgramFolder folder{storage::RealFileSystem(), live.path()};
  double longest = 0;
};

int Run(const std::string& parent) {
  World world(parent);
  RatioTable table;
  constexpr int kSets[] = {0, 2, 26, 38, 40};
  table.Measure(
      "back up, read back and compare", kAim, kRounds,
      [&] {
        for (const int mode : kSets) world.BackUp(mode);
      },
      [&] { CopyFolder(world.live.path(), world.bare.path()); });
  table.Measure(
      "restore", kAim, kRounds,
      [&] {
        for (const int mode : kSets) world.Restore(mode);
      },
      [&] { CopyFolder(world.live.path(), world.bare.path()); });
  const bool holds = table.Print();
  return Tell("longest wait of the window", world.longest, kLongestWait) && holds ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::Run(count > 1 ? arguments[1] : "/tmp");
}
