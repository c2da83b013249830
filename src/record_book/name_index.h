// The names of a record book, each with the number of its record. docs/formats/record-book.md has
// the layout.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record_book/book_layout.h"
#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::record_book {

inline constexpr int kItemLength = 60;  // bytes of an item's record

// An item of the index as a new record gets it: the name, blanks up to column 42, the number. A
// longer name has the number directly behind it.
std::string NewItem(std::string_view name, int record);
// Likewise of a record that was changed: the number stands five columns further on, always behind
// blanks.
std::string ChangedItem(std::string_view name, int record);

// The number from column 43 on; 0 for none and for one that no record of a book has. In an item
// whose name reaches into that column the name's letters stand there, which are no number, or its
// digits, which are another's.
int RecordOf(std::string_view item);

// A name that long makes its item lead nowhere, or a live record look free (see FreeRecord).
bool IsUnsafeName(const BookLayout& layout, std::string_view first_entry);

struct NameEntry {
  std::string item;  // as the index has it
  int record = 0;    // RecordOf the item
};

// The item without its number: what a person reads.
std::string_view NameIn(const NameEntry& entry);

struct NameList {
  std::vector<NameEntry> entries;                // by their items, without regard to capitals
  storage::Fault fault = storage::Fault::kNone;  // why the index can't be read
};

// An empty item at record 2 counts in the lists of entry screens.
enum class BlankSecond { kListed, kSkipped };

NameList ReadNames(storage::ProgramFolder& folder, const BookLayout& layout,
                   BlankSecond blank_second = BlankSecond::kSkipped);

// Where an item stands in the list, or is to be put into it.
std::size_t PlaceOf(const std::vector<NameEntry>& entries, std::string_view item);

// The first entry that holds the text anywhere, its number's digits too, without regard to
// capitals; -1 for none.
int FindName(const std::vector<NameEntry>& entries, std::string_view text);

}  // namespace tarnwell::record_book
