#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "backup/set_writer.h"

namespace tarnwell::backup {

// Files of records side by side: a disk holds the same records of each, from where the disk before
// ended, one behind the other.
class RecordWriter : public SetWriter {
 public:
  RecordWriter(const BackupSet& set, int year, storage::ProgramFolder& folder,
               Attendant& attendant);

  int total() const override { return records_; }
  int done() const override { return next_; }
  void StartDisk(Disk& disk, int number) override;
  Step PutNext() override;
  Step FinishDisk() override;
  void TakeBack() override;
  int position() const override { return next_; }
  int count() const override { return next_ - first_; }

 private:
  struct Source {
    std::string name;
    std::uint64_t length;  // of a record, in bytes
    std::unique_ptr<storage::File> file;
    std::uint64_t size = 0;
    std::string form;  // on this disk
    std::unique_ptr<storage::File> copy;
  };
  // The source's bytes that records `from` to `to`, 0-based and without the last, take.
  std::uint64_t BytesOf(const Source& source, int from, int to) const;
  Step Put(int count);
  Step Compare(Source& source);

  const BackupSet& set_;
  int year_;
  Attendant& attendant_;
  std::vector<Source> sources_;
  int records_ = 0;
  int next_ = 0;   // the record to be put, from 0
  int first_ = 0;  // of this disk
  int batch_;      // records put at once
  Disk* disk_ = nullptr;
  bool is_refused_ = false;
};

}  // namespace tarnwell::backup
