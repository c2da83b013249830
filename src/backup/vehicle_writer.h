#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "backup/set_writer.h"

namespace tarnwell::backup {

// The table of vehicles, then for each kind of file a line for each slot.
class VehicleWriter : public SetWriter {
 public:
  VehicleWriter(const BackupSet& set, storage::ProgramFolder& folder, Attendant& attendant);

  int total() const override { return 1 + slots_ * static_cast<int>(set_.files.size()); }
  int done() const override { return next_; }
  void StartDisk(Disk& disk, int number) override;
  Step PutNext() override;
  Step FinishDisk() override;
  void TakeBack() override;
  // 0 for the table, then the lines, counted through.
  int position() const override { return next_ - 1; }
  // Of all vehicles.
  int count() const override { return slots_; }

 private:
  // A file of lines on this disk.
  struct Lines {
    std::string form;
    std::unique_ptr<storage::File> file;
    std::uint64_t size = 0;
    int first = 0;  // the piece that its first line is
    int end = 0;    // and the one behind its last
  };
  Step PutTable();
  Step PutLine();
  std::string NameOf(int piece) const;
  void Note(const storage::ReadResult& read);
  Step Compare(Lines& lines);

  const BackupSet& set_;
  storage::ProgramFolder& folder_;
  Attendant& attendant_;
  int slots_ = 0;
  int next_ = 0;   // the piece to be put
  int first_ = 0;  // of this disk
  Disk* disk_ = nullptr;
  std::vector<Lines> lines_;  // of this disk
  int noted_ = 0;             // pieces that the report has
};

// "MCar12.Fil", or the table.
bool IsVehicleFile(std::string_view name);
// Slots that have a record or a vehicle's name. At most so many as the table can have.
int SlotCount(storage::ProgramFolder& folder);

}  // namespace tarnwell::backup
