// What sets the files of one record book apart from those of another. A book is two or three record
// files; a person, or a document, has the same record number in each of them.

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::record_book {

inline constexpr int kFirstRecord = 2;  // record 1 of each file is never used
inline constexpr int kLastFreeRecord = 20000;
// Where a record goes when none of the others is free.
inline constexpr int kOverflowRecord = kLastFreeRecord + 1;

// What a stored field holds, where it isn't the entry of the screen with that index.
enum FieldContent : int {
  kPicturePath = -1,
  kLeftAsItIs = -2,  // no screen shows it, a save keeps it
  kAlwaysBlank = -3,
};

// Text of a fixed width, blank-filled on the right.
struct StoredField {
  std::size_t width;  // bytes
  int content;        // an entry's index, or a FieldContent
};

struct BookLayout {
  std::string_view records;
  int record_length;  // bytes
  std::string_view index;
  std::string_view pictures;  // empty: the picture's path is a field of the record
  // In their order. The first is entry 0, which names the record.
  std::span<const StoredField> fields;
  int entries;              // on the screen
  bool two_names;           // the index says entry 0 and entry 1: "Lee, Ann"
  bool clears_on_deletion;  // a deleted record keeps no field
};

// One record as the screen shows it.
struct BookRecord {
  std::vector<std::string> entries;  // without blanks on the right
  std::string picture;               // its path; empty for none
};

// What the index calls it.
std::string NameOf(const BookLayout& layout, const BookRecord& record);

// An entry as it stands in a stored record's bytes: a piece of them, without blanks and zero bytes
// on the right.
std::string_view StoredEntry(const BookLayout& layout, std::string_view bytes, int entry);

// The least bytes that hold all fields.
std::size_t StoredSize(const BookLayout& layout);

}  // namespace tarnwell::record_book
