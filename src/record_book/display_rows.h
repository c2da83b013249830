// The rows of a display grid.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "record_book/display_option.h"
#include "record_book/name_index.h"
#include "storage/fault.h"
#include "storage/program_folder.h"

namespace tarnwell::record_book {

struct DisplayRow {
  std::string name;
  std::vector<std::string> values;  // one; of an address two lines, and city, state and zip code
  std::string telephone;
};

struct DisplayRows {
  std::vector<DisplayRow> rows;
  storage::Fault fault = storage::Fault::kNone;  // why the records can't be read
};

// "Lee, Ann", or "Lee" of one who has no other name.
std::string DisplayName(std::string_view first_entry, std::string_view second_entry);

// Whether the name holds the text, without regard to capitals.
bool IsSought(const DisplayBook& book, std::string_view first_entry, std::string_view second_entry,
              std::string_view text);

// What a text counts as where dates are sorted: the days of dates in their order, then the rest.
std::string DateKey(const std::string& text);

// In the order of the names. With `sought` only those whose name holds it.
DisplayRows ReadDisplay(storage::ProgramFolder& folder, const DisplayBook& book,
                        const DisplayOption& option, const std::vector<NameEntry>& names,
                        const std::optional<std::string>& sought = std::nullopt);

}  // namespace tarnwell::record_book
