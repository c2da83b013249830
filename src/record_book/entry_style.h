// The tables that make an entry screen that of contacts, or of employees.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "record_book/book_layout.h"
#include "settings/panel_colors.h"

namespace tarnwell::record_book {

struct EntryField {
  std::string_view label;  // empty for a second line of the address above
  std::size_t longest;     // characters that can be typed
};

// A group of entries below a heading.
struct EntryGroup {
  std::string_view caption;
  int first;  // entry
};

// A section of the blank worksheet.
struct WorksheetHead {
  std::string_view caption;
  int above;  // label, counted from 0
};

struct EntryStyle {
  std::string_view form_name;
  const BookLayout* book;
  std::string_view entry_caption;  // of the window
  std::string_view view_caption;
  std::span<const EntryField> fields;  // the last one has several lines
  std::span<const EntryGroup> groups;
  std::string_view name_missing;
  std::span<const int> telephones;  // entries
  std::span<const int> emails;
  std::string_view worksheet;  // what its title begins with
  std::span<const WorksheetHead> worksheet_heads;
  int label_not_on_worksheet;  // -1 for none
  settings::PanelColor panel_color;
  int help;  // context number
};

inline constexpr int kLastRowOfSheet = 16;  // entry: no later one is printed on the sheet

}  // namespace tarnwell::record_book
