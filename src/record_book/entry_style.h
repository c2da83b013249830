// The tables that make an entry screen that of contacts, or of employees.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "parts/picture_panel.h"
#include "record_book/book_layout.h"
#include "record_book/record_store.h"
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

// The record's picture: how it is linked, and what stands for none.
struct PictureStyle {
  parts::PicturePanelStyle panel{.folder = settings::PictureFolder::kPeople,
                                 .longest_path = kLongestPicturePath};
  std::string_view command_name = "SSCommand3";
  std::string_view command = "Add/Edit";
  std::string_view none_shown = "No Picture";
  std::string_view none_stored = {};
  std::size_t shortest_path = 1;  // characters: what is shorter is none
  int most_shown = 400;           // pixels of its longer side on the screen
};

struct EntryStyle {
  std::string_view form_name;
  const BookLayout* book;
  std::string_view entry_caption;  // of the window
  std::string_view view_caption;
  std::span<const EntryField> fields;
  bool has_comments;  // the last entry has several lines
  std::span<const EntryGroup> groups;
  std::string_view name_missing;          // of a new record
  std::string_view changed_name_missing;  // of one that was changed
  // A click into a record that is shown makes it ready to be changed; else only the command does.
  bool click_modifies;
  std::span<const int> telephones;  // entries
  std::span<const int> emails;
  std::string_view worksheet;  // what its title begins with; empty: no worksheet and no sheet
  std::span<const WorksheetHead> worksheet_heads;
  int label_not_on_worksheet;  // -1 for none
  std::string_view print_caption;
  PictureStyle picture;
  settings::PanelColor panel_color;
  bool has_text_color;
  int help;                 // context number
  int backup_set;           // parts/backup_menu.h
  std::string_view backup;  // captions of menu entries
  std::string_view restore;
};

inline constexpr int kLastRowOfSheet = 16;  // entry: no later one is printed on the sheet

}  // namespace tarnwell::record_book
