#include "year_sheet/rows.h"

#include <algorithm>
#include <cstddef>

#include "text/letters.h"

namespace tarnwell::year_sheet {

bool IsBlank(const Row& row) {
  return std::ranges::all_of(row, [](const auto& cell) { return text::Trim(cell).empty(); });
}

Rows ReadRows(storage::SequentialReader& file, int rows, int columns) {
  Rows read(static_cast<std::size_t>(rows), Row(static_cast<std::size_t>(columns)));
  for (Row& row : read) {
    for (std::string& cell : row) {
      if (file.AtEnd()) return read;
      cell = file.Next();
    }
  }
  return read;
}

void WriteRows(storage::SequentialWriter& file, const Rows& rows) {
  for (const Row& row : rows) {
    for (const std::string& cell : row) file.WriteText(cell);
  }
}

}  // namespace tarnwell::year_sheet
