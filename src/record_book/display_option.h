// What a display grid shows of the records of a book: the name, and one thing more.

#pragma once

#include <span>
#include <string_view>

#include "record_book/book_layout.h"

namespace tarnwell::record_book {

// What can be done with what an option shows.
enum class CellUse { kNone, kDial, kDialBusiness, kOpenWeb, kWriteMail };

struct DisplayOption {
  std::string_view caption;
  int entry;  // that is shown; a record without it is left out
  CellUse use = CellUse::kNone;
  std::string_view heading = {};  // of its column; empty: the caption
  bool is_address = false;        // the four entries behind it belong to it
  bool is_date = false;           // as it was typed; sorted by its days where it is a date
};

inline std::string_view HeadingOf(const DisplayOption& option) {
  return option.heading.empty() ? option.caption : option.heading;
}

// Which records, and how they are found.
struct DisplayBook {
  const BookLayout& layout;
  std::span<const DisplayOption> options;
  int telephone;          // the entry that lists print beside a name
  bool takes_text_as_is;  // the text sought isn't trimmed, nor are names on their left
};

}  // namespace tarnwell::record_book
