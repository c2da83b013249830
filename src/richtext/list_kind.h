#pragma once

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

enum class ListKind : std::uint8_t { kNone, kBullets, kNumbers };

inline ListKind ListKindOf(const ParagraphFormat& format) {
  if (!format.list) return ListKind::kNone;
  return format.list->numbered ? ListKind::kNumbers : ListKind::kBullets;
}

inline void LeaveList(ParagraphFormat& format) {
  format.list.reset();
  format.left_indent = 0;
  format.first_line_indent = 0;
}

// What one level of a list, and one step of any other paragraph, is indented by.
inline constexpr int kListStep = 360;    // twips
inline constexpr int kIndentStep = 720;  // likewise

}  // namespace tarnwell::richtext
