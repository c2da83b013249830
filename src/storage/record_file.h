// Numbered records of one fixed length. docs/formats/record-file.md has the layout.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "storage/program_folder.h"
#include "storage/tagged_value.h"

namespace tarnwell::storage {

// Open for one operation, closed by the destructor. Opening makes the file if it is missing. Record
// numbers start at 1. A record that was never written, a file that couldn't be opened and a stored
// length that can't be true all read as the empty value. A file that may not be changed can be
// read.
class RecordFile {
 public:
  RecordFile(ProgramFolder& folder, std::string_view name, int record_length);

  bool is_open() const { return file_ != nullptr; }
  // A read failed on the disk, or there is a file that can't be opened: the empty value that it
  // gave is no answer.
  bool has_failed() const { return has_failed_; }
  // Why the last opening, reading or writing that failed did; kNone when it was only a value that
  // doesn't fit.
  Fault fault() const { return fault_; }

  std::string GetText(int record);
  TaggedValue GetTagged(int record);
  std::int16_t GetInteger(int record);
  // The first `size` bytes of the record, zero bytes where the file ends before.
  std::string GetStructure(int record, std::size_t size);

  // A value that doesn't fit in the record isn't written and the old one stays. False when nothing
  // was written. Bytes behind the value stay as they are.
  bool PutText(int record, std::string_view text);
  bool PutTagged(int record, const TaggedValue& value);
  bool PutInteger(int record, std::int16_t value);
  bool PutStructure(int record, std::string_view bytes);

  // Calls `visit` with each record's number and bytes (always record_length of them, zero bytes
  // where the file ends before) from `first` to the file's end, or until it gives false, reading in
  // large pieces.
  void Scan(int first, const std::function<bool(int, std::string_view)>& visit);

  // False if the file wasn't open or can't say that all is written. Also closes.
  bool Close();
  // Closes after a change of which `all_put` says whether the Puts worked.
  Outcome Finish(bool all_put);

 private:
  std::size_t Width() const { return static_cast<std::size_t>(record_length_); }
  std::uint64_t OffsetOf(int record) const {
    return (static_cast<std::uint64_t>(record) - 1) * Width();
  }
  // The record's first `size` bytes, fewer where the record or the file ends before.
  std::string Read(int record, std::size_t size);
  bool Write(int record, std::string_view bytes);
  void ReadFailed();

  ProgramFolder& folder_;
  std::string name_;
  std::unique_ptr<File> file_;
  int record_length_;
  bool has_failed_ = false;
  Fault fault_ = Fault::kNone;
};

}  // namespace tarnwell::storage
