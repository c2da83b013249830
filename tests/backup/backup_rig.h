// A program's folder with something of every set in it, and folders that are disks.

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_run.h"
#include "backup/backup_sets.h"
#include "backup/restore_run.h"
#include "storage/program_folder.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

inline constexpr int kYear = 2026;

// A person who puts in one disk after the other.
class DiskChanger : public backup::Attendant {
 public:
  void ShowDeleting() override {}
  void ShowDisk(int number) override { shown.push_back(number); }
  void StartBar(int maximum) override { bar = maximum; }
  void MoveBar(int value) override { EXPECT_LE(value, bar); }
  bool GoOn() override {
    if (on_go) on_go();
    return steps_before_stop-- != 0;
  }
  bool AskForDisk(int number) override {
    asked.push_back(number);
    if (asked.size() > 40) return false;
    return on_ask ? on_ask(number) : false;
  }
  void TellUnreadableDisk() override { ++unreadable; }
  std::string DiskPath() override { return path; }

  std::string path;
  std::function<bool(int number)> on_ask;
  std::function<void()> on_go;
  int steps_before_stop = -1;
  std::vector<int> shown;
  std::vector<int> asked;
  int unreadable = 0;
  int bar = 0;
};

class BackupRig {
 public:
  // The disk of that number; they come into being when they are asked for.
  TemporaryFolder& disk(int number) {
    auto& made = disks_[number];
    if (!made) {
      made = std::make_unique<TemporaryFolder>();
      files.DiskAt(made->path()).room = room;
    }
    return *made;
  }
  void PutIn(int number) { person.path = disk(number).path(); }

  backup::BackupEnd BackUp(int mode) {
    person = {};
    PutIn(1);
    person.on_ask = [this](int number) {
      PutIn(number);
      return true;
    };
    backup::BackupRun run(*backup::SetOf(mode), kYear, folder, person);
    const backup::BackupEnd end = run.Run();
    report = run.report();
    is_cleared = run.is_cleared();
    return end;
  }

  backup::RestoreEnd Restore(int mode) {
    person = {};
    PutIn(1);
    person.on_ask = [this](int number) {
      PutIn(number);
      return true;
    };
    return RestoreAs(mode);
  }
  // With the person as it is set up.
  backup::RestoreEnd RestoreAs(int mode) {
    backup::RestoreRun run(*backup::SetOf(mode), kYear, folder, person);
    is_found = run.Find();
    if (!is_found) return backup::RestoreEnd::kUnreadable;
    wrong = run.Check();
    const backup::RestoreEnd end = run.Run();
    report = run.report();
    return end;
  }

  void FillCompany();
  std::map<std::string, std::string> Live() const {
    std::map<std::string, std::string> content;
    for (const std::string& name : live.Names()) content[name] = live.Read(name);
    return content;
  }
  void Wipe() const {
    for (const std::string& name : live.Names()) live.Remove(name);
  }

  TemporaryFolder live;
  FailingFileSystem files{storage::RealFileSystem()};
  storage::ProgramFolder folder{files, live.path()};
  std::uint64_t room = std::numeric_limits<std::uint64_t>::max();  // bytes of each disk
  DiskChanger person;
  backup::Report report;
  std::vector<std::string> wrong;
  bool is_found = false;
  bool is_cleared = false;

 private:
  std::map<int, std::unique_ptr<TemporaryFolder>> disks_;
};

// Bytes that differ from place to place.
inline std::string Bytes(std::size_t size, int seed) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = static_cast<char>(33 + (i * 7 + static_cast<std::size_t>(seed) * 13) % 90);
  }
  return bytes;
}

inline std::string Quoted(const std::vector<std::string>& values) {
  std::string content;
  for (const std::string& value : values) content += "\"" + value + "\"\r\n";
  return content;
}

inline void BackupRig::FillCompany() {
  live.Write("GColor3.Fil", Bytes(300, 1));
  live.Write("HINV3.Fil", Bytes(30, 2));
  live.Write("Stat1.Fil", Bytes(200, 3));
  live.Write("TODOActv.FIL", Quoted({"Call Ann", "1/2/2026"}));
  live.Write("TODONAME.FIL", Quoted({"Call"}));
  live.Write("RAList.Fl2", Bytes(90, 4));
  live.Write("EmployAction1.Fl2", Bytes(111, 5));
  live.Write("EmployComment0.Fl2", Bytes(222, 6));
  live.Write("EmployPolicy46.Fl2", Bytes(333, 7));
  live.Write("EmployWksht20.Fl2", Bytes(444, 8));
  live.Write("DRPln1.Fl2", Bytes(555, 9));
  live.Write("JobHold.Fl5", Quoted({"Ann", "Bob / 1"}));
  live.Write("Ann.Fl5", "job of Ann");
  live.Write("Bob - 1.Fl5", "job of Bob");
  live.Write("DiscpHold.Fl6", Quoted({"ann", "ann"}));
  live.Write("ann.Fl6", "action against Ann");
  live.Write("EvalHold.Fl7", Quoted({"ANN"}));
  live.Write("ANN.Fl7", "praise of Ann");
  live.Write("ArchiveHold.Fla", Quoted({"Ann.Fla"}));
  live.Write("Ann.Fla", "archived");
  live.Write("ADDBK1.Fil", Bytes(1190 * 9, 10));
  live.Write("ADDBK2.Fil", Bytes(60 * 9 - 11, 11));
  live.Write("ADDBK3.Fil", Bytes(250 * 7 - 100, 12));
  live.Write("Name1.Fil", Bytes(1002 * 8, 13));
  live.Write("Name2.Fil", Bytes(60 * 8, 14));
  live.Write("Name3.Fil", Bytes(250 * 8, 15));
  live.Write("Photobk3.Fil", Bytes(300 * 12 - 5, 16));
  live.Write("Photobk4.Fil", Bytes(60 * 12, 17));
  live.Write(" 2026.Cal", Bytes(900 * 7, 18));
  live.Write("2026.Fil", Bytes(2000, 19));
  live.Write("2026.Sl1", Bytes(700, 20));
  live.Write("2026.Sl2", "20");
  live.Write("2026.Vl1", Bytes(800, 21));
  live.Write("2026.Vl2", "21");
  live.Write("CarMnt1.Fil", Bytes(150 * 2 + 110, 22));
  for (int slot : {1, 3}) {
    live.Write("ACar" + std::to_string(slot) + ".Fil",
               Quoted({"NEWW", "DXEnd", "my DXEnd car", "", "12,000"}));
    live.Write("MCar" + std::to_string(slot) + ".Fil", Quoted(std::vector<std::string>(300, "x")));
    live.Write("RCar" + std::to_string(slot) + ".Fil", Quoted({"1", "2", "3", "4"}));
    live.Write("GCar" + std::to_string(slot) + ".Fil", Quoted(std::vector<std::string>(70, "y")));
  }
}

}  // namespace tarnwell::testing
