#include "forms/kept_signs.h"

#include <cctype>

namespace tarnwell::forms {
namespace {

using richtext::KeptKind;

constexpr std::size_t kLongestTip = 400;

}  // namespace

std::string_view SignOf(const richtext::KeptThing& thing) {
  switch (thing.kind) {
    case KeptKind::kNoteNumber:
      return "note";
    case KeptKind::kNestedTable:
      return "table";
    case KeptKind::kTextBox:
      return "text box";
    case KeptKind::kDrawing:
      return "drawing";
    case KeptKind::kPicture:
      return "picture";
    case KeptKind::kObject:
      return "object";
    case KeptKind::kField:
      return "field";
    case KeptKind::kPageNumber:
      return "page number";
    case KeptKind::kComment:
      return "comment";
    case KeptKind::kHiddenText:
      return "hidden text";
    case KeptKind::kDeletedText:
      return "deleted text";
  }
  return "";
}

std::string TipOf(const richtext::KeptThing& thing) {
  std::string tip(SignOf(thing));
  tip.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(tip.front())));
  if (thing.kind == KeptKind::kComment && !thing.name.empty()) tip += " by " + thing.name;
  if (thing.kind == KeptKind::kField && !thing.name.empty()) tip += " " + thing.name;
  tip += ", kept";
  const bool is_table = thing.kind == KeptKind::kNestedTable;
  const std::string text =
      is_table || thing.rtf.empty() ? "" : richtext::TextOfPart(thing.rtf, kLongestTip);
  return text.empty() ? tip : tip + ": " + text;
}

}  // namespace tarnwell::forms
