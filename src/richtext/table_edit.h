#pragma once

#include <cstdint>
#include <optional>

#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

enum class TableEdit : std::uint8_t {
  kRowAbove,
  kRowBelow,
  kColumnLeft,
  kColumnRight,
  kDeleteRows,
  kDeleteColumns,
  kDeleteTable,
};

inline constexpr int kMostTableRows = 500;    // that are inserted at one go
inline constexpr int kMostTableColumns = 32;  // likewise; each has some room of a page

// What the shown cell next to that of the position holds, or the one before it; empty at the
// table's end and outside tables.
std::optional<Range> NextCell(const RichDocument& document, Position position, bool forward);

}  // namespace tarnwell::richtext
