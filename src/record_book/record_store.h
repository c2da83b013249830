// The records of a book on disk. docs/formats/record-book.md has the layout.

#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "record_book/book_layout.h"
#include "storage/fault.h"
#include "storage/program_folder.h"
#include "storage/record_file.h"

namespace tarnwell::record_book {

inline constexpr std::size_t kLongestPicturePath = 246;  // characters, in a file of its own

// Reads records one by one, with the files open all the while.
class RecordReader {
 public:
  RecordReader(storage::ProgramFolder& folder, const BookLayout& layout);

  // One that isn't in the files reads as blank. Empty when they can't be read; fault() is then why.
  std::optional<BookRecord> Read(int record);
  storage::Fault fault() const { return fault_; }

 private:
  bool HasFailed(const storage::RecordFile& file);

  const BookLayout& layout_;
  storage::RecordFile records_;
  std::optional<storage::RecordFile> pictures_;  // where they have a file of their own
  storage::Fault fault_ = storage::Fault::kNone;
};

// A single one, likewise.
std::optional<BookRecord> ReadRecord(storage::ProgramFolder& folder, const BookLayout& layout,
                                     int record, storage::Fault* fault = nullptr);

// Calls `visit` with each record's number and bytes, for StoredEntry, in the order of the file,
// deleted ones too. Says why they couldn't all be read.
storage::Outcome ForEachRecord(storage::ProgramFolder& folder, const BookLayout& layout,
                               const std::function<bool(int, std::string_view)>& visit);

// Where a new record goes: the first one that is deleted or behind the end, or kOverflowRecord.
// Empty when the file can't be read. A live record whose first field is filled to its last
// character looks deleted too; files and backups of other years count on that.
std::optional<int> FreeRecord(storage::ProgramFolder& folder, const BookLayout& layout,
                              storage::Fault* fault = nullptr);
// No deleted record, nor one behind the end: a new record would take its place.
bool IsTaken(storage::ProgramFolder& folder, const BookLayout& layout, int record);

// The record's files are written one after the other, its item last: until then nobody finds it. A
// picture's path that is too long isn't written, and the old one stays, but for a new record.
storage::Outcome WriteNew(storage::ProgramFolder& folder, const BookLayout& layout, int record,
                          const BookRecord& content);
storage::Outcome WriteChanged(storage::ProgramFolder& folder, const BookLayout& layout, int record,
                              const BookRecord& content);

// The item goes first: whatever interrupts, what still stands is found no more, and a new record in
// its place overwrites it all. Without any other record the files go, and numbers start again.
storage::Outcome DeleteRecord(storage::ProgramFolder& folder, const BookLayout& layout, int record,
                              bool is_last);

}  // namespace tarnwell::record_book
